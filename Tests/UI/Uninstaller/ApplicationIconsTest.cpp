// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "UI/Uninstaller/ApplicationIcons.h"
#include "Tests/Support/TemporaryFolder.h"

#include <QBuffer>
#include <QtTest>

#include <sys/stat.h>

using namespace Korvane;

/// Which picture stands for an application, and that there always is one.
class ApplicationIconsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void oneWithoutAnIconIsDrawn();
    void anAppImageShowsTheIconThatFits();
    void anIconThatCannotBeReadGivesWayToTheNext();
    void aDrawingThatNamesAPipeHoldsNothingUp();
    void onlyWhatIsListedHasAnIconOfItsOwn();

private:
    /// An icon of one colour, and so wide.
    ScanItem icon(const std::string& name, int side, Qt::GlobalColor colour) const;
    ScanItem iconOf(const std::string& name, const std::string& bytes) const;
    /// The middle of the icon of an AppImage that has these icons.
    QColor shown(const std::vector<ScanItem>& icons, int pixels = 64);
    QImage generic() { return m_icons->image(QStringLiteral("unknown"), 64); }

    std::unique_ptr<TemporaryFolder> m_folder;
    std::unique_ptr<ApplicationIcons> m_icons;
};

void ApplicationIconsTest::init()
{
    m_folder = std::make_unique<TemporaryFolder>();
    m_icons = std::make_unique<ApplicationIcons>();
}

void ApplicationIconsTest::cleanup()
{
    m_icons.reset();
    m_folder.reset();
}

ScanItem ApplicationIconsTest::iconOf(const std::string& name, const std::string& bytes) const
{
    writeFile(*m_folder / name, bytes);
    return { *m_folder / name, std::nullopt, "Icons", 1, true };
}

ScanItem ApplicationIconsTest::icon(const std::string& name, int side, Qt::GlobalColor colour) const
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return iconOf(name, bytes.toStdString());
}

QColor ApplicationIconsTest::shown(const std::vector<ScanItem>& icons, int pixels)
{
    const InstalledApp app(
        *m_folder / "Painter.AppImage", "Painter", "painter", 1, icons, InstalledApp::Kind::AppImage);
    m_icons->setApps({ app });
    const QImage image = m_icons->image(QString::fromStdString(app.id.toString()), pixels);
    return image.size() == QSize(pixels, pixels) ? image.pixelColor(pixels / 2, pixels / 2) : QColor();
}

void ApplicationIconsTest::oneWithoutAnIconIsDrawn()
{
    const InstalledApp bare(*m_folder / "Bare.app", "Bare", std::nullopt, 1, {});
    m_icons->setApps({ bare });
    const QImage image = m_icons->image(QString::fromStdString(bare.id.toString()), 64);
    QCOMPARE(image.size(), QSize(64, 64));
    QVERIFY(image.pixelColor(32, 32).alpha() > 0);
    QCOMPARE(image, generic());
}

void ApplicationIconsTest::anAppImageShowsTheIconThatFits()
{
    const std::vector<ScanItem> icons{ icon("128.png", 128, Qt::green), icon("16.png", 16, Qt::red),
        icon("256.png", 256, Qt::blue) };
    QCOMPARE(shown(icons, 16), QColor(Qt::red));
    QCOMPARE(shown(icons, 64), QColor(Qt::green));
    QCOMPARE(shown(icons, 200), QColor(Qt::blue));
    QCOMPARE(shown(icons, 512), QColor(Qt::blue));
    QCOMPARE(shown({ icons[1], icons[0] }, 64), QColor(Qt::green));
    const ScanItem drawing = iconOf("scalable.svg",
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'><rect width='9' height='9' fill='#ff00ff'/></svg>");
    QCOMPARE(shown({ icons[1], drawing }, 64), QColor(Qt::magenta));
}

void ApplicationIconsTest::anIconThatCannotBeReadGivesWayToTheNext()
{
    const ScanItem good = icon("z.png", 32, Qt::green);
    const auto whole = readFile(icon("whole.png", 64, Qt::red).url);
    QCOMPARE(shown({ iconOf("a.xpm", "/* XPM */"), good }), QColor(Qt::green));
    QCOMPARE(shown({ iconOf("a.png", whole.substr(0, 40)), good }), QColor(Qt::green));
    QCOMPARE(shown({ iconOf("a.svg", "<svg><not well formed"), good }), QColor(Qt::green));
    QCOMPARE(shown({ iconOf("a.xpm", "/* XPM */") }), generic().pixelColor(32, 32));
}

void ApplicationIconsTest::aDrawingThatNamesAPipeHoldsNothingUp()
{
    const auto pipe = *m_folder / "pipe";
    QCOMPARE(::mkfifo(pipe.c_str(), 0600), 0);
    const auto picture = "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink'>"
                         "<image width='9' height='9' xlink:href='"
        + pipe.string() + "'/></svg>";
    const auto styled = "<?xml-stylesheet type=\"text/css\" href=\"" + pipe.string() + "\"?><svg/>";
    for (const auto& hostile : { picture, styled })
        QCOMPARE(shown({ iconOf("hostile.svg", hostile) }), generic().pixelColor(32, 32));
}

void ApplicationIconsTest::onlyWhatIsListedHasAnIconOfItsOwn()
{
    const InstalledApp app(*m_folder / "Painter.AppImage", "Painter", "painter", 1, { icon("a.png", 64, Qt::green) },
        InstalledApp::Kind::AppImage);
    const auto id = QString::fromStdString(app.id.toString());
    m_icons->setApps({ app });
    QVERIFY(m_icons->image(id, 64) != generic());
    m_icons->setApps({});
    QCOMPARE(m_icons->image(id, 64), generic());
}

QTEST_MAIN(ApplicationIconsTest)
#include "ApplicationIconsTest.moc"
