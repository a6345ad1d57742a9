// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace Korvane {

/// How the stand-in of "afcclient" behaves. The names of commands are "ls", "rm" and "get"; "start" is the beginning of
/// a run. Texts hold no line feed.
struct AfcStandInRules {
    std::filesystem::path device; ///< The folder that is the device: its "/".
    std::filesystem::path log; ///< Each run with its arguments, and each command that was read, a line each.
    std::filesystem::path begun; ///< Made when it begins to hang.

    /// The build: "plain" answers on the line of the prompt, "echo" repeats the command first, "bare" has no prompt.
    /// "plain spaced" and "echo spaced" have a blank before the ">" of the prompt as well.
    std::string style = "plain";
    /// What a text behind a command is taken for: "words", split at blanks, without quotes, backslashes and bytes above
    /// 127; "quotes", the same, but not split where any quote has been opened and none closed; or "line", one path to
    /// the end, or to the last " /" before the second.
    std::string reading = "words";

    std::string hangs; ///< The command at which it hangs; "copy" is the middle of a copy.
    std::string hangsBehind; ///< The command that has to be in the log before it hangs; empty for none.
    std::string dies; ///< The command in the middle of which a signal ends it.
    std::string leaves; ///< The command in the middle of which it exits with 0, without a word.
    std::string breaks; ///< The command that reports an error; a copy leaves a part of the file.
    std::string ignores; ///< The command that it passes over without a word.
    std::string complains; ///< The command at which it says something on standard error only, and exits with 0.
    std::string keeps; ///< What is called so is not deleted.
    std::string rival; ///< What somebody else writes to the destination while the tool is being started for a copy.
    std::string refusal = "Failed to overwrite existing file without '-f' option: "; ///< Of a copy to an existing file.
    std::string breakage = "Failed to do that: unknown error (5)"; ///< What a command that breaks reports.
    std::string denies; ///< The folder that the device does not let it read: its own name is all that is listed.
    bool deniesByPath = false; ///< Whether that name is the whole path.
    bool overwrites = false; ///< Whether a copy replaces an existing file.
    bool empties = false; ///< Whether a copy arrives without its bytes, without a word.
    bool sweeps = false; ///< Whether the device removes a folder with its last file.
    std::size_t flood = 0; ///< Mebibytes that it prints at every command, in lines that are no names.

    static AfcStandInRules read(const std::filesystem::path& file);
    void write(const std::filesystem::path& file) const;

    /// What the text behind a command is taken for.
    std::vector<std::string> words(const std::string& text) const;
};

} // namespace Korvane
