#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>

#include "drawing/record.h"
#include "support/files_for_tests.h"
#include "ui/drawing/svg_picture.h"

using namespace Qt::StringLiterals;

namespace {

QImage drawn_from_svg(const QString &file, const QSize &size, double ratio) {
    QSvgRenderer drawing(file);
    drawing.setAspectRatioMode(Qt::IgnoreAspectRatio);
    QImage picture(size * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter, QRectF(QPointF(0, 0), size));
    return picture;
}

/// The greatest difference of a colour's part in any pixel, 0 to 255.
int difference(const QImage &one, const QImage &other) {
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            greatest = std::max({greatest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                 std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
        }
    }
    return greatest;
}

TEST(RecordedDrawing, of_each_picture_of_the_program_is_the_drawing) {
    // A rounding at an edge or in a gradient is not seen.
    constexpr int not_seen = 24;
    const QTemporaryDir folder;
    const QString recorded = folder.filePath(u"recorded"_s);
    int drawings = 0;
    QDirIterator all(u"" ZIMBORA_RESOURCES ""_s, {u"*.svg"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString svg = all.next();
        write_file(recorded, record_drawing(read_file(svg)));
        for (const QSize &size : {QSize(32, 32), QSize(90, 140)}) {
            for (const double ratio : {1.0, 1.5}) {
                const QImage picture = svg_picture(recorded, size, ratio).toImage();
                const QImage wanted = drawn_from_svg(svg, size, ratio);

                ASSERT_EQ(picture.size(), wanted.size());
                EXPECT_LE(difference(picture.convertToFormat(wanted.format()), wanted), not_seen)
                    << svg.toStdString() << ' ' << size.width() << " x " << size.height() << " at " << ratio;
            }
        }
        ++drawings;
    }
    EXPECT_GE(drawings, 12);
}

TEST(RecordedDrawing, of_what_is_no_svg_is_nothing) {
    EXPECT_EQ(record_drawing("not a drawing"), QByteArray());
}

}  // namespace

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
