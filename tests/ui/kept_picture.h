// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

namespace planner::test {

/// How far apart two pictures of one thing are. A pixel suits when its red, green and blue lie between the
/// least and the most of the other picture's nine pixels around it, a little below and above at a flat place
/// and half of their range at a steep one: the edges of letters may fall otherwise, but what is a pixel wide
/// may neither go nor come, nor move by more than one pixel. Counted are the pixels that do not suit, in that
/// square of 16 pixels where they are most; more than all of them when the sizes differ.
int pixelsApart(const QImage& one, const QImage& other);

/// So many may be apart in a square, from one version of a font to another: corners of letters.
inline constexpr int PixelsOfLetters = 5;

/// Compares with the picture of that name in tests/data, without ".png". One that does not suit is kept in
/// the folder in which the tests run, as NAME-seen.png. Where the environment has PLANNER_KEEP_PICTURES, the
/// picture is kept instead, and false says that nothing was compared.
bool compareWithKept(const QImage& seen, const QString& name);

} // namespace planner::test
