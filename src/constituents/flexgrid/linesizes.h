// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kor {

//! Where the size of a line comes from.
enum class SizeOrigin : unsigned char {
    Default,
    Measured, //!< from what is in the line; forgotten when that changes
    Given,
};

//! The heights of a grid's rows or the widths of its columns; line 0 is the title row or the fixed column.
//!
//! Sizes are twips. On the screen every line takes whole pixels, and begins where the one before it ends. Lines have
//! the default size until they get one of their own; only then does their number cost anything. Places are found in
//! logarithmic time, whatever the sizes are.
class LineSizes
{
public:
    //! A line is never higher or wider on the screen, whatever its size: the toolkit's styles paint a title by way of a
    //! picture of its size.
    static constexpr int mostPixels = 32767;

    LineSizes(int count, int defaultSize) : m_count(count), m_default(defaultSize) {}

    [[nodiscard]] int count() const { return m_count; }
    //! New lines have the default size.
    void insert(int first, int number);
    void remove(int first, int number);

    [[nodiscard]] int size(int line) const;
    [[nodiscard]] SizeOrigin origin(int line) const { return own(line).origin; }
    void setSize(int line, int twips, SizeOrigin origin = SizeOrigin::Given);
    void resetSize(int line);
    //! Gives all measured lines the default size.
    void forgetMeasured();
    [[nodiscard]] int defaultSize() const { return m_default; }
    void setDefaultSize(int twips);
    [[nodiscard]] int defaultPixels() const { return toPixels(m_default); }

    [[nodiscard]] double twipsPerPixel() const { return m_twipsPerPixel; }
    void setTwipsPerPixel(double twips);
    [[nodiscard]] int pixels(int line) const { return toPixels(size(line)); }
    //! The pixels of all lines before this one; of count() those of all lines.
    [[nodiscard]] std::int64_t offset(int line) const;
    //! The pixels from the beginning of one line to that of another; no more of them than anybody can scroll over.
    [[nodiscard]] int distance(int from, int to) const;
    //! The line that a pixel falls on, count() for one behind the last line. Lines without any size are passed over.
    [[nodiscard]] int lineAt(std::int64_t offset) const;

private:
    struct Line {
        int size = 0;
        SizeOrigin origin = SizeOrigin::Default;
    };

    [[nodiscard]] Line own(int line) const { return m_own.empty() ? Line() : m_own[static_cast<std::size_t>(line)]; }
    void setOwn(int line, const Line &own);
    [[nodiscard]] int toPixels(int twips) const;
    void update(int line, int pixels);
    //! Makes the tree's node from the lines that it stands for, the earlier nodes being up to date.
    void makeNode(int line) const;
    void makeTree() const;

    int m_count;
    int m_default;
    double m_twipsPerPixel = 15.0;
    std::vector<Line> m_own; //!< empty while every line has the default size
    //! Sums of how many pixels lines differ from the default: a binary indexed tree, node i standing for line i - 1.
    mutable std::vector<std::int64_t> m_tree;
    mutable bool m_isTreeStale = false;
};

} // namespace kor
