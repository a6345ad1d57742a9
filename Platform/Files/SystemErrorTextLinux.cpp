// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Files/SystemErrorText.h"

#include <clocale>
#include <cstring>
#include <langinfo.h>
#include <locale.h>

namespace Korvane {
namespace {

/// The user's language, whatever the program's own locale is set to; the "C" locale when its texts are not UTF-8.
locale_t messageLocale()
{
    const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t user = newlocale(LC_CTYPE_MASK | LC_MESSAGES_MASK, "", nullptr);
    if (user == nullptr)
        return plain;
    if (std::strcmp(nl_langinfo_l(CODESET, user), "UTF-8") == 0)
        return user;
    freelocale(user);
    return plain;
}

} // namespace

std::string systemErrorText(int error)
{
    static const locale_t locale = messageLocale();
    return strerror_l(error, locale);
}

} // namespace Korvane
