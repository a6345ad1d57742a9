// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// What one run of "afcclient" printed, and how it ended. The tool exits with 0 whatever happened, and tells of errors
/// in lines of its standard output.
class AfcAnswer {
public:
    /// How a run ended.
    enum class Ending {
        Calm, ///< By itself, with status 0.
        Speechless, ///< The same, but all it had to say went to its standard error.
        Abrupt, ///< By a signal, or with another status.
        CutOff, ///< What it printed was more than is kept.
    };

    AfcAnswer(std::string output, Ending ending);

    /// What it printed, as text: empty when the bytes are not UTF-8.
    std::string_view text() const;

    /// Whether the bytes are UTF-8.
    bool isText() const;

    /// What follows "Error: " in each line that begins so, possibly behind a prompt or what tells of progress.
    std::vector<std::string> errors() const;

    /// The same without these texts, which an error may repeat: only what the tool itself says of its command.
    std::vector<std::string> errorsWithout(std::vector<std::string> texts) const;

    /// Whether there is a prompt in it; both builds in use print one for every command.
    bool hasPrompt() const;

    /// Whether it tells how much of a file has come ("\r11% (427.5 MB/s)   "), so that a copy has begun.
    bool showsProgress() const;

    /// Whether nothing broke off: the run ended by itself and, where there is a prompt, at another, the one for "quit".
    bool isWhole() const;

    Ending ending() const { return m_ending; }

private:
    bool endsAtPrompt() const;

    std::string m_output;
    Ending m_ending;
};

} // namespace Korvane
