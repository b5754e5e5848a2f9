// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "conflictdialog.h"

#include "focusmark.h"
#include "messages.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace orders {

namespace {

constexpr int dialogWidth = 560;
constexpr int mostHeight = 460; // of the fields; more of them are scrolled

QString shown(const QString &value) { return value.isEmpty() ? QStringLiteral("(puste)") : value; }

//! Whole texts: only who can read both can choose.
QLabel *labelOf(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

} // namespace

ConflictDialog::ConflictDialog(const QString &whom, const QList<Conflict> &conflicts, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Zmiany na innym stanowisku"));
    new FocusMark(this);

    auto *fields = new QWidget;
    auto *list = new QVBoxLayout(fields);
    list->setContentsMargins(0, 0, 0, 0);
    for (const Conflict &conflict : conflicts)
        list->addWidget(choiceOf(conflict));
    list->addStretch();
    auto *area = new QScrollArea;
    area->setWidget(fields);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto *buttons = new QDialogButtonBox;
    m_save = buttons->addButton(QStringLiteral("&Zapisz"), QDialogButtonBox::AcceptRole);
    m_save->setDefault(true);
    buttons->addButton(QStringLiteral("&Wróć do formularza"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(labelOf(QStringLiteral("%1 zmieniono i zapisano tymczasem na innym stanowisku. "
                                             "Wybierz przy każdym polu (strzałki i spacja), co ma zostać zapisane.")
                                  .arg(whom)));
    layout->addWidget(area, 1);
    layout->addWidget(buttons);
    setMinimumWidth(dialogWidth);
    const int inner = dialogWidth - layout->contentsMargins().left() - layout->contentsMargins().right();
    area->setMinimumHeight(std::min(list->totalHeightForWidth(inner), mostHeight));
    updateState();

    // Where the clerk has to decide, or else where they may: Enter saves from there as well.
    const auto open = std::find_if(m_choices.cbegin(), m_choices.cend(), [](const Choice &choice) {
        return !choice.ours->isChecked() && !choice.theirs->isChecked();
    });
    QRadioButton *first = open != m_choices.cend() ? open->ours : m_choices.front().theirs;
    first->setFocus(Qt::TabFocusReason);
}

QWidget *ConflictDialog::choiceOf(const Conflict &conflict)
{
    auto *box = new QGroupBox(conflict.name);
    const Choice choice{new QRadioButton(QStringLiteral("Moje:")), new QRadioButton(QStringLiteral("Zapisane tam:"))};
    auto *grid = new QGridLayout(box);
    const auto addRow = [&](int row, QWidget *head, const QString &value) {
        head->setAccessibleDescription(shown(value));
        grid->addWidget(head, row, 0, Qt::AlignTop);
        grid->addWidget(labelOf(shown(value)), row, 1);
    };
    addRow(0, choice.ours, conflict.ours);
    addRow(1, choice.theirs, conflict.theirs);
    addRow(2, labelOf(QStringLiteral("Było:")), conflict.before);
    grid->setColumnStretch(1, 1);
    choice.theirs->setChecked(!conflict.isOurs);
    for (QRadioButton *button : {choice.ours, choice.theirs})
        connect(button, &QRadioButton::toggled, this, &ConflictDialog::updateState);
    m_choices.push_back(choice);
    return box;
}

bool ConflictDialog::takesTheirs(qsizetype field) const
{
    return m_choices.at(static_cast<std::size_t>(field)).theirs->isChecked();
}

void ConflictDialog::updateState()
{
    if (!m_save)
        return;
    m_save->setEnabled(std::all_of(m_choices.cbegin(), m_choices.cend(), [](const Choice &choice) {
        return choice.ours->isChecked() || choice.theirs->isChecked();
    }));
}

bool decide(ConflictDialog &dialog, const std::function<QString(const ConflictDialog &)> &takeOver)
{
    for (;;) {
        const bool isDecided = dialog.exec() == QDialog::Accepted;
        dialog.parentWidget()->activateWindow(); // not every window system does so by itself
        if (!isDecided)
            return false;
        const QString problem = takeOver(dialog);
        if (problem.isEmpty())
            return true;
        warn(dialog.parentWidget(), dialog.windowTitle(), problem);
    }
}

} // namespace orders
