// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "random/steps.h"

#include <QtCore/QStringList>

#include <array>
#include <random>

namespace kor::test {

namespace {

struct Name {
    const char *text;
    int weight; //!< how often, in proportion to the others
};

constexpr std::array<Name, Step::kinds> names{{
    {"PressKey", 24},  {"TypeText", 8},     {"Compose", 3}, {"Commit", 3}, {"Paste", 4}, {"Drop", 2},  {"Click", 12},
    {"ClickPopup", 6}, {"ClickOutside", 3}, {"Drag", 2},    {"Wheel", 2},  {"Focus", 6}, {"Enter", 4}, {"Show", 4},
    {"Set", 16},       {"Call", 4},         {"Save", 2},    {"Handle", 8}, {"Serve", 2}, {"Wait", 6},
}};

constexpr unsigned choices = 100000;

} // namespace

QList<Step> stepsOfDay(unsigned seed, int count)
{
    std::mt19937 random(seed);
    QList<int> drawn;
    for (int kind = 0; kind < Step::kinds; ++kind)
        drawn.append(QList<int>(names[static_cast<std::size_t>(kind)].weight, kind));
    // Not by a distribution of the library, which may differ from one to the next.
    const auto below = [&random](unsigned end) { return static_cast<unsigned>(random() % end); };
    // A user stays with a control for a while.
    int control = 0;
    QList<Step> steps;
    for (int i = 0; i < count; ++i) {
        if (below(4) == 0)
            control = static_cast<int>(below(64));
        const auto kind =
            static_cast<Step::Kind>(drawn.at(static_cast<int>(below(static_cast<unsigned>(drawn.size())))));
        const unsigned what = below(choices);
        steps.append({kind, control, what, below(choices)});
    }
    return steps;
}

QString written(const QList<Step> &steps)
{
    QStringList words;
    for (const Step &step : steps) {
        words << QStringLiteral("%1/%2/%3/%4")
                     .arg(QLatin1String(names[static_cast<std::size_t>(step.kind)].text))
                     .arg(step.control)
                     .arg(step.what)
                     .arg(step.how);
    }
    return words.join(u' ');
}

std::optional<QList<Step>> readSteps(const QString &text)
{
    QList<Step> steps;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        const QStringList parts = word.trimmed().split(u'/');
        if (parts.size() != 4)
            return std::nullopt;
        Step step;
        bool isKnown = false;
        for (int kind = 0; kind < Step::kinds && !isKnown; ++kind) {
            isKnown = parts.at(0) == QLatin1String(names[static_cast<std::size_t>(kind)].text);
            step.kind = static_cast<Step::Kind>(kind);
        }
        if (!isKnown)
            return std::nullopt;
        step.control = parts.at(1).toInt();
        step.what = parts.at(2).toUInt();
        step.how = parts.at(3).toUInt();
        steps << step;
    }
    return steps;
}

} // namespace kor::test
