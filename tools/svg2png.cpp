// SPDX-License-Identifier: GPL-3.0-or-later
// Renders SVG files to PNG at their own size: svg2png in.svg out.png [in.svg out.png ...]
// Used by tools/render_images.py so the pictures come out the same as the program
// would draw the sources itself.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    int failures = 0;
    for (int i = 1; i + 1 < argc; i += 2) {
        QSvgRenderer renderer(QString::fromLocal8Bit(argv[i]));
        if (!renderer.isValid()) {
            std::fprintf(stderr, "cannot read %s\n", argv[i]);
            ++failures;
            continue;
        }
        QImage image(renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        renderer.render(&painter);
        painter.end();
        if (!image.save(QString::fromLocal8Bit(argv[i + 1]))) {
            std::fprintf(stderr, "cannot write %s\n", argv[i + 1]);
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
