// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/AfcListingExercise.h"

#include "Core/Devices/AfcAnswer.h"
#include "Core/Devices/AfcListing.h"
#include "Core/Devices/AfcWords.h"
#include "Core/Devices/DevicePlaces.h"

#include <algorithm>

namespace Korvane {

namespace {

const std::string prompt = "\x1b[0;30m\x1b[47mafc:\x1b[m\x1b[1;33m\x1b[44m/\x1b[m> ";
const std::string spacedPrompt = "\x1b[0;30m\x1b[47mafc:\x1b[m\x1b[1;33m\x1b[44m/DCIM\x1b[m > ";
const std::string folder = "/DCIM/100APPLE";

bool isControl(char character) { return static_cast<unsigned char>(character) < 0x20 || character == 0x7F; }

std::string wrongInName(const std::string& name, std::string_view bytes)
{
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos)
        return "a name that leaves its folder";
    if (std::any_of(name.begin(), name.end(), isControl))
        return "a name with a control character";
    if (bytes.find(name) == std::string_view::npos)
        return "a name that is not in the listing";
    if (name == "quit" || name == "ls " + folder)
        return "a command for a name";
    return {};
}

/// Whether the word is what stays of the text when bytes are left out.
bool staysOf(const std::string& word, const std::string& text)
{
    auto at = text.begin();
    for (const char character : word) {
        at = std::find(at, text.end(), character);
        if (at == text.end())
            return false;
        ++at;
    }
    return true;
}

/// What is wrong with how the tool may take the path of a file.
std::string wrongInWords(const std::string& path)
{
    for (const auto& word : possibleWords(path)) {
        // One may begin with a blank: where a quote or a backslash keeps it together.
        if (word.empty() || !staysOf(word, path))
            return "a word that is none";
    }
    if (isListedDevicePath(path) && deviceFolderOf(path) != folder)
        return "a path in another folder";
    return {};
}

} // namespace

std::vector<std::string> afcListingSeeds()
{
    return {
        prompt + "IMG_1.JPG\nIMG_1.AAE\nIMG 2.MOV\n" + prompt,
        prompt + "ls " + folder + "\n.\n..\n100APPLE/\nInfo.plist\n" + prompt + "quit\n",
        prompt + "Error: Object not found (8)\n" + prompt,
        spacedPrompt + "IMG_1.JPG\n" + spacedPrompt + "quit\n",
        prompt + "\r11% (427.5 MB/s)   \r22% (1.0 MB/s)   Error: Failed to read\n" + prompt,
        "a> b\n'quoted'\n\"two words\"\nback\\slash\ncaf\xC3\xA9.jpg\n\xC2\x85\n\xFF\n-rf\n...\n//\n./\n../\n",
        " \t name with blanks \t \nErrors\na: b\nquit\nls " + folder + "\n> \n>\n",
    };
}

std::string exerciseAfcListing(std::string_view bytes)
{
    const AfcAnswer answer(std::string(bytes), AfcAnswer::Ending::Calm);
    if (answer.errors().size() > bytes.size() || (!answer.hasPrompt() && !answer.isWhole()))
        return "errors or a prompt that are not there";
    DevicePlaces places({});
    places.add(folder + "/IMG_1.JPG");
    for (const auto& name : credibleNames(parseNames(bytes), { "ls " + folder, "quit" })) {
        const auto path = folder + "/" + name;
        auto wrong = wrongInName(name, bytes);
        if (wrong.empty())
            wrong = wrongInWords(path);
        if (wrong.empty() && isPlainWord(path) && places.areNamedInPlaceOf(path))
            wrong = "a plain path that is taken for another";
        if (!wrong.empty())
            return wrong;
    }
    return {};
}

} // namespace Korvane
