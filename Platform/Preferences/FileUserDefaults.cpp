// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Preferences/FileUserDefaults.h"

#include "Platform/Preferences/ObserverList.h"
#include "Platform/Preferences/PreferencesFile.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileSystemWatcher>

#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <utility>

namespace Korvane {

namespace {

class FileUserDefaults final : public UserDefaults {
public:
    explicit FileUserDefaults(const std::filesystem::path& path)
        : m_file(path)
        , m_values(m_file.read())
    {
    }

    bool boolForKey(std::string_view key, bool whenAbsent) const override
    {
        const auto text = textForKey(key);
        return text == "true" ? true : text == "false" ? false : whenAbsent;
    }

    std::int64_t integerForKey(std::string_view key, std::int64_t whenAbsent) const override
    {
        bool isInteger = false;
        const qlonglong value = textForKey(key).toLongLong(&isInteger);
        return isInteger ? value : whenAbsent;
    }

    double doubleForKey(std::string_view key, double whenAbsent) const override
    {
        bool isNumber = false;
        const double value = textForKey(key).toDouble(&isNumber);
        return isNumber ? value : whenAbsent;
    }

    bool setBool(std::string_view key, bool value) override { return store(key, value ? "true" : "false"); }
    bool setInteger(std::string_view key, std::int64_t value) override { return store(key, std::to_string(value)); }
    bool setDouble(std::string_view key, double value) override
    {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text << std::setprecision(std::numeric_limits<double>::max_digits10) << value;
        return store(key, text.str());
    }

    std::unique_ptr<Observation> observe(std::function<void(std::string_view key)> changed) override
    {
        if (QCoreApplication::instance() != nullptr && m_file.makeFolder())
            watchFile();
        return m_observers.add(std::move(changed));
    }

private:
    QByteArray textForKey(std::string_view key) const
    {
        const auto found = m_values.find(std::string(key));
        return found == m_values.end() ? QByteArray() : QByteArray::fromStdString(found->second);
    }

    bool store(std::string_view key, std::string value)
    {
        if (!PreferencesFile::isKey(key))
            return false;
        m_unsaved[std::string(key)] = std::move(value);
        auto saved = m_file.merge(m_unsaved);
        if (!saved) {
            takeOver(m_file.read());
            return false;
        }
        m_unsaved.clear();
        takeOver(std::move(*saved));
        if (m_watcher != nullptr)
            watchFile();
        return true;
    }

    /// Makes `values`, with what is not saved yet over them, the current ones and tells of every difference.
    void takeOver(PreferencesFile::Values values)
    {
        for (const auto& [key, value] : m_unsaved)
            values[key] = value;
        const auto former = std::exchange(m_values, std::move(values));
        PreferencesFile::Values changed;
        for (const auto& entry : m_values)
            if (const auto found = former.find(entry.first); found == former.end() || found->second != entry.second)
                changed.insert(entry);
        for (const auto& entry : former)
            if (!m_values.contains(entry.first))
                changed.insert(entry);
        for (const auto& entry : changed)
            m_observers.notify(entry.first);
    }

    void watchFile()
    {
        if (m_watcher == nullptr) {
            m_watcher = std::make_unique<QFileSystemWatcher>();
            const auto readAgain = [this] {
                takeOver(m_file.read());
                watchFile();
            };
            QObject::connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, m_watcher.get(), readAgain);
            QObject::connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, m_watcher.get(), readAgain);
        }
        // The folder tells of a file put in the place of another, the file of one written over: both are needed.
        const auto file = QFile::decodeName(m_file.path().c_str());
        const auto folder = QFile::decodeName(m_file.path().parent_path().c_str());
        if (!m_watcher->directories().contains(folder))
            m_watcher->addPath(folder);
        if (!m_watcher->files().contains(file) && QFile::exists(file))
            m_watcher->addPath(file);
    }

    PreferencesFile m_file;
    PreferencesFile::Values m_values;
    PreferencesFile::Values m_unsaved;
    ObserverList m_observers;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
};

} // namespace

std::shared_ptr<UserDefaults> makeFileUserDefaults(const std::filesystem::path& path)
{
    return std::make_shared<FileUserDefaults>(path);
}

} // namespace Korvane
