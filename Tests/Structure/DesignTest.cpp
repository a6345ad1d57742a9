// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The rules of the design judged on snippets.

#include "Tests/Structure/Design.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Korvane::Structure {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

Complaints screen(const std::string& text) { return checkDesign(sourceText("UI/Scan/A.qml", text)); }

Complaints control(const std::string& text) { return checkDesign(sourceText("UI/Controls/A.qml", text)); }

} // namespace

TEST(Design, WhatIsNamedIsFree)
{
    EXPECT_THAT(screen("    color: Theme.label\n    color: \"transparent\"\n    radius: Theme.radius\n"), IsEmpty());
    EXPECT_THAT(screen("    width: parent.width - 2 * Theme.pageMargin\n    x: (page.width - width) / 2\n"), IsEmpty());
    EXPECT_THAT(screen("    spacing: 0\n    opacity: row.shown ? 1 : 0\n    symbol: \"doc.on.doc.fill\"\n"), IsEmpty());
    EXPECT_THAT(screen("    width: 1\n    currentIndex: 7\n    maximumLineCount: 3 // 44 px\n"), IsEmpty());
    EXPECT_THAT(screen("    border.width: row.activeFocus ? Theme.rowRing : 0\n    z: 10\n"), IsEmpty());
    EXPECT_THAT(control("    implicitWidth: 200\n    x: 12\n"), IsEmpty());
}

TEST(Design, WhatIsStatedInAScreenIsNot)
{
    EXPECT_THAT(screen("\n    color: \"#fff\"\n"), ElementsAre(HasSubstr("UI/Scan/A.qml:2: a colour of its own")));
    EXPECT_THAT(screen("    color: row.down ? \"red\" : Theme.label\n"), SizeIs(1));
    EXPECT_THAT(screen("    color: Qt.alpha(Theme.blue, 0.3)\n"), SizeIs(1));
    EXPECT_THAT(screen("    property color ink: row.on\n        ? \"#123456\" : Theme.label\n"), SizeIs(1));
    EXPECT_THAT(screen("    font.pixelSize: 13\n"), SizeIs(1));
    EXPECT_THAT(screen("    font.pixelSize: view.wide\n        ? Theme.title : 15\n"), SizeIs(1));
    EXPECT_THAT(screen("    radius: 5\n    spacing: 6\n    anchors.leftMargin: Theme.spacing + 3\n"), SizeIs(3));
    EXPECT_THAT(screen("    duration: Theme.animated ? 350 : 0\n    opacity: 0.45\n"), SizeIs(2));
    EXPECT_THAT(screen("    implicitHeight: 56\n    width: Math.min(parent.width, 560)\n    x: 20\n"), SizeIs(3));
    EXPECT_THAT(screen("    anchors.margins: -16\n    border.width: row.activeFocus ? 2 : 0\n"), SizeIs(2));
}

TEST(Design, ControlsStateNoLookOfTheirOwnEither)
{
    EXPECT_THAT(control("    radius: 5\n    color: \"black\"\n    leftPadding: 10\n    duration: 200\n"), SizeIs(4));
}

TEST(Design, ThemeAndMetricsStateIt)
{
    EXPECT_THAT(checkDesign(sourceText("UI/Theme.qml", "    color: \"#fff\"\n")), IsEmpty());
    EXPECT_THAT(checkDesign(sourceText("UI/Design/Metrics.qml", "    width: 960\n")), IsEmpty());
    EXPECT_THAT(checkDesign(sourceText("Tests/UI/A.qml", "    width: 960\n")), IsEmpty());
}

} // namespace Korvane::Structure
