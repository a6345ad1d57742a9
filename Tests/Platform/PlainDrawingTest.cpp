// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Icons/PlainDrawing.h"

#include "Platform/ApplicationIcon.h"
#include "Tests/Support/TemporaryFolder.h"

#include <string>

#include <gtest/gtest.h>

namespace Korvane {
namespace {

std::string repeated(const std::string& text, std::size_t count)
{
    std::string result;
    for (std::size_t copy = 0; copy < count; ++copy)
        result += text;
    return result;
}

std::string drawing(const std::string& content)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' viewBox='0 0 9 9'>"
        + content + "</svg>";
}

/// The picture at an address, as part of a drawing.
std::string picture(const std::string& address)
{
    return drawing("<image width='3' height='3' xlink:href='" + address + "'/>");
}

/// A PNG image of one pixel.
constexpr const char* pixel = "data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk"
                              "YPhfDwAChwGA60e6kgAAAABJRU5ErkJggg==";

TEST(PlainDrawing, IsWhatIconsAreMadeOf)
{
    EXPECT_TRUE(isPlainDrawing(drawing("<rect id='a' width='5' height='5' fill='url(#g)'/><use xlink:href='#a'/>")));
    EXPECT_TRUE(isPlainDrawing(drawing("<style>.a{fill:red} .b{fill:blue}</style><g class='a'><path d='M0 0'/></g>")));
    EXPECT_TRUE(isPlainDrawing("<?xml version='1.0'?><!DOCTYPE svg PUBLIC 'a' 'b' [<!ENTITY n 'http://a.example/'>]>"
                               "<svg xmlns:n='&n;'><!-- remark --></svg>"));
    EXPECT_TRUE(isPlainDrawing(picture(pixel)));
    EXPECT_TRUE(isPlainDrawing(drawing(repeated("<path d='M0 0 L 1 1'/>", 10'000))));
}

TEST(PlainDrawing, ReadsNoOtherFile)
{
    for (const char* address : { "/dev/tty", "file:///dev/tty", "pipe", "../pipe", " /dev/tty", ":/resource", "",
             "data/../../pipe", "http://a.example/" })
        EXPECT_FALSE(isPlainDrawing(picture(address))) << address;
    EXPECT_FALSE(isPlainDrawing("<s:svg><s:image xlink:href='/dev/tty'/></s:svg>")) << "whatever the prefix is";
    EXPECT_FALSE(isPlainDrawing("<!DOCTYPE svg [<!ENTITY t '/dev/tty'>]><svg><image xlink:href='&t;'/></svg>"));
    EXPECT_FALSE(isPlainDrawing("<?xml-stylesheet type='text/css' href='/dev/zero'?>" + drawing("")));
    EXPECT_FALSE(isPlainDrawing(drawing("<?xml-stylesheet href='/dev/zero'?>")));
}

TEST(PlainDrawing, HoldsNoPictureButSmallOnes)
{
    EXPECT_FALSE(isPlainDrawing(picture("data:image/png;base64,PHN2Zy8+"))) << "a drawing within the drawing";
    EXPECT_FALSE(isPlainDrawing(picture("data:image/png,iVBORw0KGgo")));
    const std::string wide = "data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAA//8AAAABCAYAAAAfFcSJ";
    EXPECT_FALSE(isPlainDrawing(picture(wide))) << "65,535 pixels wide";
    const auto one = std::string("<image xlink:href='") + pixel + "'/>";
    EXPECT_TRUE(isPlainDrawing(drawing(repeated(one, 2))));
    EXPECT_FALSE(isPlainDrawing(drawing(repeated(one, 3))));
}

TEST(PlainDrawing, RepeatsNothingThatRepeats)
{
    EXPECT_FALSE(isPlainDrawing(drawing("<g id='a'><use xlink:href='#a'/></g>")));
    EXPECT_FALSE(isPlainDrawing(drawing("<use id='a' xlink:href='#b'/><use id='b' xlink:href='#a'/>")));
    std::string grown = "<rect id='a0'/>";
    for (int level = 1; level < 7; ++level)
        grown += "<g id='a" + std::to_string(level) + "'>"
            + repeated("<use xlink:href='#a" + std::to_string(level - 1) + "'/>", 60) + "</g>";
    EXPECT_FALSE(isPlainDrawing(drawing(grown))) << "60^6 rectangles";
}

TEST(PlainDrawing, CostsNoMoreThanItsLength)
{
    const auto many = repeated("<rect width='5' height='5'/>", 20'000);
    EXPECT_TRUE(isPlainDrawing(drawing("<g id='a'>" + many + "</g>")));
    EXPECT_FALSE(isPlainDrawing(drawing("<g id='a'>" + many + "</g>" + repeated("<use xlink:href='#a'/>", 1000))));
    EXPECT_FALSE(isPlainDrawing(drawing("<style>" + repeated(".c{fill:red}", 1000) + "</style>" + many)));
    EXPECT_FALSE(isPlainDrawing(drawing(repeated(many, 4)))) << "more than 2 MiB";
    EXPECT_FALSE(isPlainDrawing(drawing(repeated("<g>", 1000) + repeated("</g>", 1000))));
    EXPECT_FALSE(isPlainDrawing("<svg " + repeated("a='' ", 1000) + "/>"));
}

TEST(PlainDrawing, IsWellFormed)
{
    for (const char* wrong : { "", "<svg>", "<svg></g>", "<svg/><svg/>", "</svg>", "text" })
        EXPECT_FALSE(isPlainDrawing(wrong)) << wrong;
}

TEST(PlainDrawing, AloneIsAnIcon)
{
    const TemporaryFolder folder;
    const auto plain = drawing("<rect width='5' height='5'/>");
    writeFile(folder / "plain.svg", plain);
    writeFile(folder / "hostile.svg", picture("/dev/tty"));
    EXPECT_EQ(applicationIcon(folder / "plain.svg", 64), plain);
    EXPECT_EQ(applicationIcon(folder / "hostile.svg", 64), std::nullopt);
}

} // namespace
} // namespace Korvane
