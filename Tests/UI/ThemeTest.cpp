// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/Contrast.h"
#include "Tests/UI/Support/LoadedTheme.h"

#include <QColor>
#include <QGuiApplication>
#include <QPalette>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Korvane;

class ThemeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theAccentGradientEndsAt55Percent();
    void theHeroGradientRunsFromCyanToBlue();
    void theWindowIsTintedFaintly();
    void colourNamesFollowTheAppearance();
    void followsThePaletteWhereTheDesktopSaysNothing();
    void nothingMovesUnderReducedMotion();
    void highContrastStrengthensTextAndLines();

private:
    QVariant member(const char* name) const { return m_loaded->member(name); }
    QColor color(const char* name) const { return m_loaded->color(name); }

    std::unique_ptr<LoadedTheme> m_loaded;
    Appearance* m_appearance = nullptr;
    QObject* m_theme = nullptr;
};

void ThemeTest::init()
{
    m_loaded = std::make_unique<LoadedTheme>();
    m_theme = m_loaded->theme();
    m_appearance = m_loaded->appearance();
    QVERIFY(m_theme != nullptr && m_appearance != nullptr);
    m_appearance->setDark(false);
    m_appearance->setReducedMotion(false);
    m_appearance->setHighContrast(false);
}

void ThemeTest::theAccentGradientEndsAt55Percent()
{
    for (const QColor& accent : { QColor(Qt::red), QColor(QStringLiteral("#32ade6")), QColor(1, 2, 3) }) {
        QVariant gradient;
        QVERIFY(QMetaObject::invokeMethod(
            m_theme, "accentGradient", Q_RETURN_ARG(QVariant, gradient), Q_ARG(QColor, accent)));
        const QVariantList stops = gradient.toList();
        QCOMPARE(stops.size(), 2);
        QCOMPARE(stops.first().value<QColor>(), accent);
        const auto last = stops.last().value<QColor>();
        QCOMPARE(last.rgb(), accent.rgb());
        QVERIFY(std::abs(last.alphaF() - 0.55F) < 0.005F);
    }
}

void ThemeTest::theHeroGradientRunsFromCyanToBlue()
{
    const QVariantList stops = member("heroGradient").toList();
    QCOMPARE(stops.size(), 2);
    QCOMPARE(stops.first().value<QColor>(), color("cyan"));
    QCOMPARE(stops.last().value<QColor>(), color("blue"));
}

void ThemeTest::theWindowIsTintedFaintly()
{
    const QVariantList stops = member("windowBackground").toList();
    QCOMPARE(stops.size(), 3);
    QCOMPARE(stops[0].value<QColor>().rgb(), color("blue").rgb());
    QVERIFY(std::abs(stops[0].value<QColor>().alphaF() - 0.07F) < 0.005F);
    QCOMPARE(stops[1].value<QColor>().alpha(), 0);
    QCOMPARE(stops[2].value<QColor>().rgb(), color("purple").rgb());
    QVERIFY(std::abs(stops[2].value<QColor>().alphaF() - 0.06F) < 0.005F);
}

void ThemeTest::colourNamesFollowTheAppearance()
{
    // As the platform publishes them: name, light, dark.
    constexpr const char* colours[][3] = { { "blue", "#007aff", "#0a84ff" }, { "cyan", "#32ade6", "#64d2ff" },
        { "teal", "#30b0c7", "#40c8e0" }, { "green", "#34c759", "#30d158" }, { "orange", "#ff9500", "#ff9f0a" },
        { "yellow", "#ffcc00", "#ffd60a" }, { "red", "#ff3b30", "#ff453a" }, { "pink", "#ff2d55", "#ff375f" },
        { "purple", "#af52de", "#bf5af2" }, { "indigo", "#5856d6", "#5e5ce6" }, { "gray", "#8e8e93", "#98989d" } };
    for (const auto& [name, light, dark] : colours) {
        m_appearance->setDark(false);
        QCOMPARE(color(name), QColor(QLatin1String(light)));
        m_appearance->setDark(true);
        QCOMPARE(color(name), QColor(QLatin1String(dark)));
    }
    QVERIFY(luminance(color("window")) < 0.05);
    QVERIFY(luminance(color("label")) > 0.8);
}

void ThemeTest::followsThePaletteWhereTheDesktopSaysNothing()
{
    m_appearance->setDark(std::nullopt);
    const QPalette former = QGuiApplication::palette();
    QPalette palette = former;
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    QGuiApplication::setPalette(palette);
    QTRY_VERIFY(member("dark").toBool());
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    QGuiApplication::setPalette(palette);
    QTRY_VERIFY(!member("dark").toBool());
    QGuiApplication::setPalette(former);
}

void ThemeTest::nothingMovesUnderReducedMotion()
{
    QVERIFY(member("durationShort").toInt() >= 150 && member("durationLong").toInt() <= 250);
    m_appearance->setReducedMotion(true);
    QCOMPARE(member("durationShort").toInt(), 0);
    QCOMPARE(member("durationLong").toInt(), 0);
    QVERIFY(!member("animated").toBool());
}

void ThemeTest::highContrastStrengthensTextAndLines()
{
    const double before = contrast(color("secondaryLabel"), color("window"));
    const int line = color("separator").alpha();
    m_appearance->setHighContrast(true);
    QVERIFY(contrast(color("secondaryLabel"), color("window")) > std::max(before, 10.0));
    QVERIFY(color("separator").alpha() > line);
}

QTEST_MAIN(ThemeTest)
#include "ThemeTest.moc"
