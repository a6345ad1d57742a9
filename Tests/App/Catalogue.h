// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <tuple>

namespace Korvane {

/// What names a text in a catalogue.
struct CatalogueKey {
    QString context;
    QString source;
    QString comment;
    bool counts = false;

    bool operator<(const CatalogueKey& other) const
    {
        return std::tie(context, source, comment, counts)
            < std::tie(other.context, other.source, other.comment, other.counts);
    }
};

/// What it says in the language of the catalogue.
struct CatalogueEntry {
    QStringList forms; ///< One, or where the text counts something one for each plural form.
    QString state; ///< As Qt's tools mark it: "unfinished", "obsolete", "vanished"; empty when it is in order.
};

using Catalogue = std::map<CatalogueKey, CatalogueEntry>;

/// Reads a file that lupdate wrote; nothing when it cannot be read.
std::optional<Catalogue> readCatalogue(const QString& path);

} // namespace Korvane
