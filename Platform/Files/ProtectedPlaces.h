// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Platform/Files/ItemPlace.h"

#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// The places that nothing removes, whoever asks and by whatever path: the home folder and all that holds it,
/// mount points, folders shared by all users.
///
/// Made anew for each run, because places are known by what they are now, not only by their names. One thread.
class ProtectedPlaces {
public:
    explicit ProtectedPlaces(const std::filesystem::path& home);

    /// Throws FileError, in a sentence of its own, when the item is one of these places.
    void check(const ItemPlace& item);

    /// Looks up anew what the places are when next asked.
    void forget() { m_identities.clear(); }

private:
    void addNamedPlaces();
    void addFoldersAbove();
    bool isNamed(const ItemPlace& item) const;
    bool isIdentical(const ItemPlace& item);

    std::filesystem::path m_home;
    std::vector<std::string> m_names;
    std::vector<EntryIdentity> m_identities; ///< Found when first asked for.
};

} // namespace Korvane
