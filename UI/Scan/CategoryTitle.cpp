// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Scan/CategoryTitle.h"

#include <QCoreApplication>

namespace Korvane {

namespace {

// The rules hold these texts without Qt, where its tools would not find them.
[[maybe_unused]] const char* const translatable[] = {
    QT_TRANSLATE_NOOP("Categories", "User Caches"),
    QT_TRANSLATE_NOOP("Categories", "Log Files"),
    QT_TRANSLATE_NOOP("Categories", "Xcode Junk"),
    QT_TRANSLATE_NOOP("Categories", "Temporary Files"),
    QT_TRANSLATE_NOOP("Categories", "Trash"),
    QT_TRANSLATE_NOOP("Categories", "Large Files"),
};

} // namespace

QString categoryTitle(const std::string& category)
{
    return QCoreApplication::translate("Categories", category.c_str());
}

} // namespace Korvane
