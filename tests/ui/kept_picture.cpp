// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "kept_picture.h"

#include "support/data_file.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace planner::test {

namespace {

constexpr int Side = 16;          // of the squares, pixels
constexpr int FlatTolerance = 12; // of 256 shades

struct Range {
    int least = 255;
    int most = 0;

    void include(const Range& other) {
        least = std::min(least, other.least);
        most = std::max(most, other.most);
    }
    bool holds(int value) const {
        const int tolerance = FlatTolerance + (most - least) / 2;
        return value >= least - tolerance && value <= most + tolerance;
    }
};

/// One of the three colours of a picture.
struct Plane {
    int width, height;
    std::vector<Range> shades; // row by row

    Plane(const QImage& picture, int shift) : width(picture.width()), height(picture.height()) {
        for (int y = 0; y < height; ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            std::transform(line, line + width, std::back_inserter(shades), [shift](QRgb colour) {
                const int shade = static_cast<int>(colour >> shift & 0xFFU);
                return Range{shade, shade};
            });
        }
    }
    const Range& at(int x, int y) const {
        return shades[static_cast<std::size_t>(std::clamp(y, 0, height - 1)) *
                          static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(std::clamp(x, 0, width - 1))];
    }
    /// Each pixel with the two beside it, to the given side.
    Plane widened(int dx, int dy) const {
        Plane wide = *this;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                Range& range = wide.shades[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                                           static_cast<std::size_t>(x)];
                range.include(at(x - dx, y - dy));
                range.include(at(x + dx, y + dy));
            }
        }
        return wide;
    }
};

/// Counts the pixels that do not suit, square by square.
class Squares {
public:
    explicit Squares(QSize picture)
        : m_across(picture.width() / Side + 1),
          m_counts(static_cast<std::size_t>(m_across) *
                   static_cast<std::size_t>(picture.height() / Side + 1)),
          m_width(picture.width()),
          m_apart(static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height())) {}

    void compare(const Plane& seen, const Plane& around) {
        for (int y = 0; y < seen.height; ++y) {
            for (int x = 0; x < seen.width; ++x) {
                if (!around.at(x, y).holds(seen.at(x, y).least)) {
                    note(x, y);
                }
            }
        }
    }
    int most() const { return *std::max_element(m_counts.begin(), m_counts.end()); }

private:
    void note(int x, int y) {
        const auto pixel =
            static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
        if (std::exchange(m_apart[pixel], 1) == 0) {
            ++m_counts[static_cast<std::size_t>(y / Side) * static_cast<std::size_t>(m_across) +
                       static_cast<std::size_t>(x / Side)];
        }
    }

    int m_across;
    std::vector<int> m_counts;
    int m_width;
    std::vector<char> m_apart; // by pixel
};

} // namespace

int pixelsApart(const QImage& one, const QImage& other) {
    if (one.size() != other.size()) {
        return Side * Side + 1;
    }
    const QImage first = one.convertToFormat(QImage::Format_RGB32);
    const QImage second = other.convertToFormat(QImage::Format_RGB32);
    if (first == second) {
        return 0;
    }
    Squares squares(one.size());
    for (const int shift : {0, 8, 16}) {
        const Plane a(first, shift);
        const Plane b(second, shift);
        squares.compare(a, b.widened(1, 0).widened(0, 1));
        squares.compare(b, a.widened(1, 0).widened(0, 1));
    }
    return squares.most();
}

bool compareWithKept(const QImage& seen, const QString& name) {
    const QString file = QString::fromStdString(dataFile(name.toStdString() + ".png"));
    if (qEnvironmentVariableIsSet("PLANNER_KEEP_PICTURES")) {
        constexpr int smallest = 0;
        EXPECT_TRUE(seen.save(file, "PNG", smallest)) << file.toStdString();
        return false;
    }
    const int apart = pixelsApart(QImage(file), seen);
    EXPECT_LE(apart, PixelsOfLetters) << name.toStdString();
    if (apart > PixelsOfLetters) {
        seen.save(name + QStringLiteral("-seen.png"));
    }
    return true;
}

} // namespace planner::test
