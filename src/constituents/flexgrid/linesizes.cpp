// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/flexgrid/linesizes.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace kor {

namespace {

constexpr std::int64_t farthest = 1 << 26; // pixels, so that their twips are no more than a Long holds

int lowestBit(int number) { return number & -number; }

} // namespace

void LineSizes::insert(int first, int number)
{
    const bool isAtEnd = first == m_count;
    m_count += number;
    if (m_own.empty())
        return;
    m_own.insert(m_own.begin() + first, static_cast<std::size_t>(number), Line());
    if (!isAtEnd || m_isTreeStale) {
        m_isTreeStale = true;
        return;
    }
    m_tree.resize(m_own.size() + 1);
    for (int line = first; line < m_count; ++line)
        makeNode(line);
}

void LineSizes::remove(int first, int number)
{
    m_count -= number;
    if (m_own.empty())
        return;
    const auto begin = m_own.begin() + first;
    m_own.erase(begin, begin + number);
    if (first == m_count && !m_isTreeStale)
        m_tree.resize(m_own.size() + 1);
    else
        m_isTreeStale = true;
}

int LineSizes::size(int line) const
{
    const Line set = own(line);
    return set.origin == SizeOrigin::Default ? m_default : set.size;
}

void LineSizes::setSize(int line, int twips, SizeOrigin origin)
{
    if (m_own.empty()) {
        m_own.assign(static_cast<std::size_t>(m_count), {});
        m_tree.assign(m_own.size() + 1, 0);
        m_isTreeStale = false;
    }
    setOwn(line, {twips, origin});
}

void LineSizes::resetSize(int line)
{
    if (origin(line) != SizeOrigin::Default)
        setOwn(line, {});
}

void LineSizes::forgetMeasured()
{
    for (Line &line : m_own) {
        if (line.origin == SizeOrigin::Measured)
            line = {};
    }
    m_isTreeStale = !m_own.empty();
}

void LineSizes::setOwn(int line, const Line &own)
{
    const int before = pixels(line);
    m_own[static_cast<std::size_t>(line)] = own;
    update(line, pixels(line) - before);
}

void LineSizes::setDefaultSize(int twips)
{
    m_default = twips;
    m_isTreeStale = !m_own.empty();
}

void LineSizes::setTwipsPerPixel(double twips)
{
    if (twips == m_twipsPerPixel)
        return;
    m_twipsPerPixel = twips;
    m_isTreeStale = !m_own.empty();
}

// A line that is to be seen at all takes one pixel at least.
int LineSizes::toPixels(int twips) const
{
    return twips == 0 ? 0 : static_cast<int>(std::clamp(std::lround(twips / m_twipsPerPixel), 1L, long{mostPixels}));
}

std::int64_t LineSizes::offset(int line) const
{
    makeTree();
    std::int64_t sum = std::int64_t{line} * defaultPixels();
    if (!m_tree.empty()) {
        for (int node = line; node > 0; node -= lowestBit(node))
            sum += m_tree[static_cast<std::size_t>(node)];
    }
    return sum;
}

int LineSizes::distance(int from, int to) const
{
    return static_cast<int>(std::clamp(offset(to) - offset(from), -farthest, farthest));
}

int LineSizes::lineAt(std::int64_t offset) const
{
    makeTree();
    const std::int64_t usual = defaultPixels();
    if (m_tree.empty())
        return usual == 0 ? m_count : static_cast<int>(std::clamp<std::int64_t>(offset / usual, 0, m_count));
    int line = 0;
    std::int64_t rest = offset;
    for (int step = static_cast<int>(std::bit_floor(static_cast<unsigned>(m_count))); step > 0; step /= 2) {
        if (line + step > m_count)
            continue;
        const std::int64_t pixels = step * usual + m_tree[static_cast<std::size_t>(line + step)];
        if (pixels <= rest) {
            line += step;
            rest -= pixels;
        }
    }
    return line;
}

void LineSizes::update(int line, int pixels)
{
    if (m_isTreeStale || pixels == 0)
        return;
    for (int node = line + 1; node <= m_count; node += lowestBit(node))
        m_tree[static_cast<std::size_t>(node)] += pixels;
}

void LineSizes::makeNode(int line) const
{
    const int node = line + 1;
    std::int64_t sum = pixels(line) - defaultPixels();
    for (int child = node - 1; child > node - lowestBit(node); child -= lowestBit(child))
        sum += m_tree[static_cast<std::size_t>(child)];
    m_tree[static_cast<std::size_t>(node)] = sum;
}

void LineSizes::makeTree() const
{
    if (!m_isTreeStale)
        return;
    m_isTreeStale = false;
    m_tree.resize(m_own.size() + 1);
    for (int line = 0; line < m_count; ++line)
        makeNode(line);
}

} // namespace kor
