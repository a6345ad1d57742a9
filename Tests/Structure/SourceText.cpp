// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Structure/SourceText.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

namespace Korvane::Structure {

namespace {

const std::array roomsRead{ "App", "Benchmarks", "CLI", "Core", "Packaging", "Platform", "Tests", "UI", "cmake",
    "scripts", ".ci" };

bool isWritten(const std::filesystem::path& file)
{
    static const std::set<std::string> endings{ ".cpp", ".h", ".mm", ".qml", ".sh", ".cmake", ".py" };
    const std::string room = file.parent_path().filename().string();
    const bool isProgram = !file.has_extension() && (room == "scripts" || room == ".ci");
    return isProgram || file.filename() == "CMakeLists.txt" || endings.contains(file.extension().string());
}

std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    if (!stream) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return text.str();
}

} // namespace

std::string SourceText::room() const { return path.empty() ? std::string() : path.begin()->string(); }

bool SourceText::isHeader() const { return path.extension() == ".h"; }

bool SourceText::isSource() const { return path.extension() == ".cpp" || path.extension() == ".mm"; }

bool SourceText::isQml() const { return path.extension() == ".qml"; }

SourceText sourceText(std::filesystem::path path, const std::string& text)
{
    SourceText result{ std::move(path), {} };
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        result.lines.push_back(line);
    }
    return result;
}

std::vector<SourceText> readProject(const std::filesystem::path& root)
{
    std::vector<SourceText> files;
    for (const char* room : roomsRead) {
        if (!std::filesystem::exists(root / room)) {
            continue;
        }
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / room)) {
            if (entry.is_regular_file() && isWritten(entry.path())) {
                files.push_back(sourceText(entry.path().lexically_relative(root), contentOf(entry.path())));
            }
        }
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
    return files;
}

} // namespace Korvane::Structure
