// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/tipi_impegno.h"
#include "ui/kit/pictures.h"

#include <QImage>

#include <gtest/gtest.h>
#include <set>

namespace planner {

namespace {

constexpr int Side = 40;

bool hasInk(const QImage& image, const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 128) {
                return true;
            }
        }
    }
    return false;
}

QRect corner(char digit) {
    const int index = digit - '1';
    return {index % 2 == 0 ? 0 : Side / 2, index < 2 ? 0 : Side / 2, Side / 2, Side / 2};
}

} // namespace

TEST(PicturesTest, EachDrawingOfAKeyStandsInItsOwnCornerAndNowhereElse) {
    Pictures pictures;
    for (int number = 1; number <= 15; ++number) {
        const QImage image = pictures.picture(number, Side, 1).toImage();
        for (const char digit : {'1', '2', '3', '4'}) {
            const bool expected = chiaveImmagine(number).find(digit) != std::string_view::npos;
            EXPECT_EQ(hasInk(image, corner(digit)), expected) << "picture " << number << ", corner " << digit;
        }
    }
}

TEST(PicturesTest, TheSixteenPicturesDiffer) {
    Pictures pictures;
    std::set<QByteArray> seen;
    for (int number = 1; number <= 16; ++number) {
        const QImage image =
            pictures.picture(number, Side, 1).toImage().convertToFormat(QImage::Format_ARGB32);
        seen.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(seen.size(), 16U);
}

TEST(PicturesTest, APictureIsSharpAtTwiceTheResolution) {
    Pictures pictures;
    const QPixmap& picture = pictures.picture(ImmaginePresenza, Side, 2);
    EXPECT_EQ(picture.size(), QSize(2 * Side, 2 * Side));
    EXPECT_EQ(picture.devicePixelRatio(), 2);
}

TEST(PicturesTest, InALineEachDrawingHasAPlaceOfItsOwnAndAllTheRoomThereIs) {
    Pictures pictures;
    for (int number = 1; number <= 15; ++number) {
        const int count = static_cast<int>(chiaveImmagine(number).size());
        const QImage image = pictures.line(number, QSize(80, 12), 1).toImage();
        EXPECT_EQ(image.size(), QSize(12 * count, 12)) << "picture " << number;
        for (int place = 0; place < count; ++place) {
            EXPECT_TRUE(hasInk(image, QRect(12 * place, 0, 12, 12))) << "picture " << number;
        }
    }
    EXPECT_EQ(pictures.line(1, QSize(20, 12), 1).size(), QSize(20, 5)) << "four as wide as the room";
    EXPECT_EQ(pictures.line(ImmaginePresenza, QSize(80, 12), 1).size(), QSize(12, 12));
    EXPECT_EQ(pictures.line(8, QSize(80, 12), 2).size(), QSize(24, 24)) << "sharp at twice the resolution";
}

TEST(PicturesTest, NumbersBeyondTheImageListGiveNoPicture) {
    Pictures pictures;
    for (const int number : {0, 17, -1, 255}) {
        EXPECT_TRUE(pictures.picture(number, Side, 1).isNull()) << number;
        EXPECT_TRUE(pictures.line(number, QSize(Side, Side), 1).isNull()) << number;
    }
    EXPECT_TRUE(pictures.picture(1, 0, 1).isNull());
    EXPECT_TRUE(pictures.line(1, QSize(3, 12), 1).isNull());
    EXPECT_TRUE(pictures.line(ImmaginePresenza, QSize(-2, 12), 1).isNull());
}

} // namespace planner
