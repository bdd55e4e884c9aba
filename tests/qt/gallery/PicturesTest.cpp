#include "qt/gallery/Picture.h"

#include <QDir>

#include <gtest/gtest.h>

namespace zarvil::gallery {

namespace {

struct Difference {
    double mean = 0;     ///< of all channels, in levels of 255
    double striking = 0; ///< share of the pixels of which a channel is more than 16 levels off
};

Difference difference(const QImage& one, const QImage& other) {
    constexpr int channels = 4;
    constexpr int strikingLevels = 16;
    Difference found;
    const double pixels = one.width() * one.height();
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            int largest = 0;
            for (int channel = 0; channel < channels; ++channel) {
                const int levels = std::abs(one.constScanLine(y)[channels * x + channel] -
                                            other.constScanLine(y)[channels * x + channel]);
                found.mean += levels / (pixels * channels);
                largest = std::max(largest, levels);
            }
            found.striking += largest > strikingLevels ? 1 / pixels : 0;
        }
    return found;
}

/// The pictures come from a renderer that shares nothing with this one. Text is left out, as it
/// differs from one installed font to another.
TEST(Gallery, looksLikeItsPictures) {
    std::size_t compared = 0;
    for (const Case& shown : allCases())
        for (const int scale : {1, 2}) {
            const QImage expected(QDir(QStringLiteral(PICTURES))
                                      .filePath(QStringLiteral("%1@%2x.png")
                                                    .arg(QString::fromUtf8(shown.name))
                                                    .arg(scale)));
            if (shown.name.find("title") != std::string::npos)
                continue;
            const QImage drawn = picture(shown, scale);
            ASSERT_EQ(drawn.size(), expected.size()) << shown.name;
            const Difference found =
                difference(drawn, expected.convertToFormat(QImage::Format_RGBA8888));
            EXPECT_LE(found.mean, 0.3) << shown.name << scale;
            EXPECT_LE(found.striking, 0.001) << shown.name << scale;
            ++compared;
        }
    EXPECT_EQ(compared, 32U);
}

} // namespace

} // namespace zarvil::gallery
