// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/FileDigest.h"

#include "Platform/Hashing/PrefixReader.h"
#include "Platform/Sha256.h"
#include "Platform/Walking/ReadingScope.h"

#include <utility>

namespace Korvane {

FileDigest::FileDigest(std::size_t files, PathAt pathAt, std::int64_t prefixBytes, const Cancellation& cancellation)
    : m_cancellation(cancellation)
    , m_reader(std::make_unique<PrefixReader>(files, std::move(pathAt), prefixBytes, cancellation))
{
}

FileDigest::~FileDigest() = default;

std::optional<std::string> FileDigest::nextPrefixHash()
{
    const ReadingScope reading;
    Sha256 sha256;
    for (;;) {
        const auto* const portion = m_reader->next();
        if (!portion || !portion->isReadable)
            return std::nullopt;
        sha256.update(portion->bytes.get(), portion->count);
        m_cancellation.throwIfCancelled();
        if (portion->isLast)
            return sha256.finalize();
    }
}

} // namespace Korvane
