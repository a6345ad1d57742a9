// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Renders the application's icon while building: render-icon ICON.svg SIZE OUTPUT.png [SIZE OUTPUT.png ...]

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

bool render(QSvgRenderer& renderer, int size, const QString& output)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    return image.save(output, "PNG");
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 4 || arguments.size() % 2 != 0) {
        std::fputs("usage: render-icon ICON.svg SIZE OUTPUT.png [SIZE OUTPUT.png ...]\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(arguments.at(1));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "render-icon: cannot read %s\n", qPrintable(arguments.at(1)));
        return 1;
    }
    for (qsizetype i = 2; i < arguments.size(); i += 2) {
        const int size = arguments.at(i).toInt();
        if (size <= 0 || !render(renderer, size, arguments.at(i + 1))) {
            std::fprintf(stderr, "render-icon: cannot write %s\n", qPrintable(arguments.at(i + 1)));
            return 1;
        }
    }
    return 0;
}
