// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/UI/Support/Contrast.h"
#include "Tests/UI/Support/LoadedTheme.h"

#include <QTest>

#include <memory>

using namespace Korvane;

namespace {

struct Look {
    bool dark;
    bool highContrast;
};

constexpr double forText = 4.5;
constexpr double forSigns = 3;

} // namespace

/// Every ink of the theme on every ground that it is used on, in all four appearances, as the Web Content Accessibility
/// Guidelines 2.1 ask for (1.4.3, 1.4.11). Exempt, as there: disabled controls, and symbols in a named colour of the
/// platform beside a text that says the same.
class ContrastTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void textCanBeRead_data() { addLooks(); }
    void textCanBeRead();
    void textOfControlsCanBeRead_data() { addLooks(); }
    void textOfControlsCanBeRead();
    void whiteCanBeReadOnFills_data() { addLooks(); }
    void whiteCanBeReadOnFills();
    void signsCanBeSeen_data() { addLooks(); }
    void signsCanBeSeen();
    void linesCanBeSeenWhereContrastIsAsked_data();
    void linesCanBeSeenWhereContrastIsAsked();

private:
    static void addLooks();
    void setLook();
    QColor color(const char* name) const { return m_loaded->color(name); }
    QColor on(const char* fill, const QColor& ground) const { return over(color(fill), ground); }
    /// The page where it is plain, and where its tint is strongest.
    QList<QColor> pages() const;
    /// What rows lie on.
    QList<QColor> grounds() const;
    void verify(const char* ink, const QColor& ground, double least) const;

    std::unique_ptr<LoadedTheme> m_loaded;
    Appearance* m_appearance = nullptr;
    QObject* m_theme = nullptr;
};

void ContrastTest::init()
{
    m_loaded = std::make_unique<LoadedTheme>();
    m_theme = m_loaded->theme();
    m_appearance = m_loaded->appearance();
    QVERIFY(m_theme != nullptr && m_appearance != nullptr);
}

void ContrastTest::addLooks()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("highContrast");
    for (const Look& look : { Look{ false, false }, Look{ false, true }, Look{ true, false }, Look{ true, true } })
        QTest::addRow("%s%s", look.dark ? "dark" : "light", look.highContrast ? ", high contrast" : "")
            << look.dark << look.highContrast;
}

void ContrastTest::setLook()
{
    QFETCH(const bool, dark);
    QFETCH(const bool, highContrast);
    m_appearance->setDark(dark);
    m_appearance->setHighContrast(highContrast);
}

QList<QColor> ContrastTest::pages() const
{
    const QColor window = color("window");
    QList<QColor> pages{ window };
    for (const QVariant& stop : m_theme->property("windowBackground").toList())
        pages.append(over(stop.value<QColor>(), window));
    return pages;
}

QList<QColor> ContrastTest::grounds() const
{
    QList<QColor> grounds = pages();
    grounds << color("sidebar") << color("card") << on("cardBackground", pages().first());
    // A card without a shadow has no base of its own.
    grounds << on("cardBackground", pages().last()) << on("cardBackground", pages().at(1));
    return grounds;
}

void ContrastTest::verify(const char* ink, const QColor& ground, double least) const
{
    QCOMPARE(ground.alpha(), 255);
    const double reached = contrast(over(color(ink), ground), ground);
    QVERIFY2(reached >= least,
        qPrintable(QStringLiteral("%1 reaches %2 on %3").arg(QLatin1String(ink)).arg(reached).arg(ground.name())));
}

void ContrastTest::textCanBeRead()
{
    setLook();
    for (const char* ink : { "label", "secondaryLabel", "tertiaryLabel" }) {
        for (const QColor& ground : grounds()) {
            for (const QColor& state : { ground, on("hoverFill", ground), on("pressedFill", ground) })
                verify(ink, state, forText);
            verify(ink, on("selectionFill", ground), forText);
        }
        verify(ink, color("elevated"), forText);
        verify(ink, color("field"), forText);
        verify(ink, on("warningFill", color("window")), forText);
    }
    for (const char* ink : { "linkLabel", "warningLabel", "errorLabel", "successLabel" }) {
        for (const QColor& ground : grounds())
            verify(ink, ground, forText);
        verify(ink, color("elevated"), forText);
    }
    for (const QColor& ground : { color("card"), on("hoverFill", color("card")) })
        verify("label", on("capsuleFill", ground), forText);
}

void ContrastTest::textOfControlsCanBeRead()
{
    setLook();
    QList<QColor> places = pages();
    places << color("sidebar") << color("card") << color("elevated") << on("warningFill", color("window"));
    for (const QColor& place : places) {
        const QColor fill = on("controlFill", place);
        for (const QColor& state : { fill, on("hoverFill", fill), on("pressedFill", fill) })
            verify("label", state, forText);
    }
    // A button without a border, a tab.
    for (const QColor& ground : { color("card"), color("window"), color("sidebar") }) {
        verify("linkLabel", on("hoverFill", ground), forText);
        verify("linkLabel", on("pressedFill", ground), forText);
    }
    verify("warningLabel", on("hoverFill", color("card")), forText);
}

void ContrastTest::whiteCanBeReadOnFills()
{
    setLook();
    for (const char* name : { "prominentFill", "destructiveFill", "greenFill" }) {
        const QColor fill = color(name);
        for (const QColor& state : { fill, on("filledHoverFill", fill), on("filledPressedFill", fill) })
            verify("onAccent", state, forText);
    }
}

void ContrastTest::signsCanBeSeen()
{
    setLook();
    for (const QColor& ground : { color("card"), color("window"), pages().at(1), pages().last() }) {
        for (const char* sign : { "focusRing", "checkBorder", "switchOffFill", "checkedFill" })
            verify(sign, ground, forSigns);
    }
    verify("focusRing", color("sidebar"), forSigns);
    verify("focusRing", on("selectionFill", color("card")), forSigns);
    verify("checkBorder", color("field"), forSigns);
    // A mark in its box, a knob on its switch.
    QVERIFY(contrast(color("onAccent"), on("pressedFill", color("checkedFill"))) >= forSigns);
    for (const char* knob : { "knob", "pressedKnob" }) {
        verify(knob, on("switchOffFill", color("card")), forSigns);
        verify(knob, color("checkedFill"), forSigns);
    }
}

void ContrastTest::linesCanBeSeenWhereContrastIsAsked_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void ContrastTest::linesCanBeSeenWhereContrastIsAsked()
{
    QFETCH(const bool, dark);
    m_appearance->setDark(dark);
    m_appearance->setHighContrast(true);
    for (const char* line : { "separator", "controlBorder", "cardBorder", "checkBorder" }) {
        for (const char* ground : { "window", "sidebar", "card", "elevated" })
            verify(line, color(ground), forSigns);
    }
}

QTEST_MAIN(ContrastTest)
#include "ContrastTest.moc"
