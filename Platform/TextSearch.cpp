// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/TextSearch.h"

#include "Platform/UserLocale.h"

#include <cstdint>
#include <memory>

#include <unicode/coll.h>
#include <unicode/normalizer2.h>
#include <unicode/stringpiece.h>
#include <unicode/stsearch.h>
#include <unicode/tblcoll.h>
#include <unicode/uchar.h>

namespace Korvane {

namespace {

/// The reader's language. The plain locale of POSIX compares code points: for a reader that is English.
icu::Locale readersLocale(const std::string& name)
{
    const icu::Locale locale(name.c_str());
    if (locale.isBogus())
        return icu::Locale::getRoot();
    return std::string_view(locale.getVariant()) == "POSIX" ? icu::Locale::getEnglish() : locale;
}

/// The collator of a language for searching; nothing when ICU has no data at all.
std::unique_ptr<icu::Collator> searchCollator(const icu::Locale& locale)
{
    UErrorCode error = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(locale, error));
    if (U_FAILURE(error))
        return nullptr;
    collator->setStrength(icu::Collator::SECONDARY);
    collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, error);
    return collator;
}

/// The text without differences of case. Collation alone would tell a sharp s from two letters.
icu::UnicodeString folded(std::string_view text, const icu::Locale& locale)
{
    const std::string_view language = locale.getLanguage();
    const bool hasDotlessI = language == "tr" || language == "az";
    auto unicode = icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
    return unicode.foldCase(hasDotlessI ? U_FOLD_CASE_EXCLUDE_SPECIAL_I : U_FOLD_CASE_DEFAULT);
}

icu::UnicodeString composed(const icu::UnicodeString& text)
{
    UErrorCode error = U_ZERO_ERROR;
    const auto* const normalizer = icu::Normalizer2::getNFCInstance(error);
    auto normal = U_SUCCESS(error) ? normalizer->normalize(text, error) : text;
    return U_SUCCESS(error) ? normal : text;
}

/// Whether the letters of a part stand in a text, none of them with an accent more.
bool containsLetters(const icu::UnicodeString& text, const icu::UnicodeString& part)
{
    for (auto found = text.indexOf(part); found >= 0; found = text.indexOf(part, found + 1)) {
        const auto end = found + part.length();
        if (end == text.length() || u_getCombiningClass(text.char32At(end)) == 0)
            return true;
    }
    return false;
}

/// Bytes that compare as the collator compares the texts; without one, as their characters do.
std::string orderingKey(const icu::UnicodeString& text, const icu::Collator* collator)
{
    std::string key;
    if (collator == nullptr)
        return text.toUTF8String(key);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(text.length()) * 4 + 16);
    auto length = collator->getSortKey(text, bytes.data(), static_cast<std::int32_t>(bytes.size()));
    if (static_cast<std::size_t>(length) > bytes.size()) {
        bytes.resize(static_cast<std::size_t>(length));
        length = collator->getSortKey(text, bytes.data(), length);
    }
    key.assign(bytes.begin(), bytes.begin() + length);
    return key;
}

} // namespace

bool localizedCaseInsensitiveContains(std::string_view text, std::string_view part)
{
    return localizedCaseInsensitiveContains(text, part, userLocaleName());
}

bool localizedCaseInsensitiveContains(std::string_view text, std::string_view part, const std::string& locale)
{
    const auto language = readersLocale(locale);
    const auto pattern = folded(part, language);
    const auto searched = folded(text, language);
    // Collation counts some pairs as one letter, "ch" in Czech, of which it finds no half: but people type half of it.
    if (pattern.isEmpty() || containsLetters(composed(searched), composed(pattern)))
        return true;
    const auto collator = searchCollator(language);
    auto* const rules = dynamic_cast<icu::RuleBasedCollator*>(collator.get());
    if (rules == nullptr)
        return false;
    UErrorCode error = U_ZERO_ERROR;
    if (rules->compare(pattern, icu::UnicodeString(), error) == UCOL_EQUAL)
        return true;
    if (searched.isEmpty())
        return false;
    icu::StringSearch search(pattern, searched, rules, nullptr, error);
    const auto found = search.first(error);
    return U_SUCCESS(error) && found != USEARCH_DONE;
}

std::vector<std::string> localizedCaseInsensitiveKeys(
    const std::vector<std::string_view>& texts, const Cancellation& cancellation)
{
    return localizedCaseInsensitiveKeys(texts, userLocaleName(), cancellation);
}

std::vector<std::string> localizedCaseInsensitiveKeys(
    const std::vector<std::string_view>& texts, const std::string& locale, const Cancellation& cancellation)
{
    const auto language = readersLocale(locale);
    const auto collator = searchCollator(language);
    std::vector<std::string> keys;
    keys.reserve(texts.size());
    for (const auto text : texts) {
        cancellation.throwIfCancelled();
        keys.push_back(orderingKey(folded(text, language), collator.get()));
    }
    return keys;
}

} // namespace Korvane
