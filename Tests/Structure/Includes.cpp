// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Structure/Includes.h"

#include <regex>
#include <set>

namespace Korvane::Structure {

bool Include::isStandardLibrary() const
{
    static const std::set<std::string> headers{ "algorithm", "any", "array", "atomic", "barrier", "bit", "bitset",
        "cassert", "cctype", "cerrno", "cfenv", "cfloat", "charconv", "chrono", "cinttypes", "climits", "clocale",
        "cmath", "codecvt", "compare", "complex", "concepts", "condition_variable", "coroutine", "csetjmp", "csignal",
        "cstdarg", "cstddef", "cstdint", "cstdio", "cstdlib", "cstring", "ctime", "cuchar", "cwchar", "cwctype",
        "deque", "exception", "filesystem", "forward_list", "fstream", "functional", "future", "initializer_list",
        "iomanip", "ios", "iosfwd", "iostream", "istream", "iterator", "latch", "limits", "list", "locale", "map",
        "memory", "mutex", "new", "numbers", "numeric", "optional", "ostream", "queue", "random", "ranges", "ratio",
        "regex", "scoped_allocator", "semaphore", "set", "shared_mutex", "source_location", "span", "sstream", "stack",
        "stdexcept", "streambuf", "string", "string_view", "strstream", "syncstream", "system_error", "thread", "tuple",
        "type_traits", "typeindex", "typeinfo", "unordered_map", "unordered_set", "utility", "valarray", "variant",
        "vector", "version" };
    return !isQuoted && headers.contains(target);
}

bool Include::isGenerated() const { return isQuoted && (target.ends_with(".moc") || target.starts_with("moc_")); }

std::vector<Include> includesOf(const SourceText& file)
{
    static const std::regex pattern(R"re(^\s*#\s*(?:include|include_next|import)\s*(["<])([^">]*)[">])re");
    std::vector<Include> includes;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        std::smatch match;
        if (std::regex_search(file.lines[i], match, pattern)) {
            includes.push_back({ i + 1, match[2].str(), match[1].str() == "\"" });
        }
    }
    return includes;
}

} // namespace Korvane::Structure
