// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "recordwindow.h"

#include "conflictdialog.h"
#include "focusmark.h"
#include "messages.h"
#include "orderstore.h"
#include "recordform.h"

#include <KorDaoUC/FocusedField>

#include <QtGui/QScreen>
#include <QtGui/QShortcut>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace orders {

using Kind = RecordOutcome::Kind;

RecordWindow::RecordWindow(const OrderStore &store, RecordTable table, SearchSubject list, kor::Database &database,
                           QWidget *parent)
    : QDialog(parent),
      m_store(store),
      m_records(store.connection(), std::move(table)),
      m_form(new RecordForm(m_records.table(), database)),
      m_said(new QLabel),
      m_new(addCommand(QStringLiteral("N&owy"), Qt::CTRL | Qt::Key_N, [this] { startNew(); })),
      m_save(addCommand(QStringLiteral("&Zapisz"), Qt::CTRL | Qt::Key_S,
                        [this] {
                            if (const auto id = save())
                                stayOn(*id);
                        })),
      m_undo(addCommand(QStringLiteral("Co&fnij zmiany..."), Qt::CTRL | Qt::Key_R,
                        [this] {
                            if (mayDropChanges(this, m_records.table().title))
                                undo();
                        })),
      m_remove(addCommand(QStringLiteral("&Usuń..."), Qt::CTRL | Qt::Key_D, [this] { remove(); }))
{
    list.label = QStringLiteral("&Szukaj:");
    m_list = new FoundList(std::move(list));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_said->setObjectName(QStringLiteral("lblSaid"));
    m_said->setWordWrap(true);

    new QShortcut(Qt::Key_F5, this, [this] { command([this] { refresh(); }); });
    m_save->setDefault(true);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton *button : {m_new, m_save, m_undo, m_remove})
        buttons->addWidget(button);
    auto *end = new QPushButton(QStringLiteral("Z&amknij"));
    end->setAutoDefault(false);
    connect(end, &QPushButton::clicked, this, &QDialog::reject);
    auto *below = new QHBoxLayout;
    below->addWidget(m_said, 1);
    below->addWidget(end);

    auto *right = new QVBoxLayout;
    right->addWidget(m_form);
    right->addLayout(buttons);
    right->addStretch();
    auto *sides = new QHBoxLayout;
    sides->addWidget(m_list, 1);
    sides->addSpacing(fontMetrics().averageCharWidth());
    sides->addLayout(right, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(sides, 1);
    layout->addLayout(below);
    resize((QSize(64, 28) * fontMetrics().height()).boundedTo(screen()->availableSize()));
    new FocusMark(this);

    connect(m_list, &FoundList::chosenChanged, this, &RecordWindow::showChosen);
    connect(m_list, &FoundList::taken, m_form, &RecordForm::focusFirstField);
    connect(m_form, &RecordForm::edited, this, &RecordWindow::updateState);
    m_form->setRecord(newRecord(m_records.table()));
    showChosen();
    m_list->setFocus();
}

QPushButton *RecordWindow::addCommand(const QString &text, const QKeySequence &key, const std::function<void()> &work)
{
    auto *button = new QPushButton(text);
    button->setAutoDefault(false);
    button->setToolTip(key.toString(QKeySequence::NativeText));
    connect(button, &QPushButton::clicked, this, [this, work] { command(work); });
    new QShortcut(key, this, [button] { button->click(); });
    return button;
}

void RecordWindow::command(const std::function<void()> &work)
{
    m_said->clear();
    guarded(work);
    kor::enterFocusedField(this); // the clerk types on over what the field shows now
}

void RecordWindow::guarded(const std::function<void()> &work)
{
    try {
        work();
    } catch (const StoreError &error) {
        warn(this, QStringLiteral("Baza danych"), error.text());
    }
}

void RecordWindow::go(qint64 id)
{
    if (m_list->choose(id))
        m_list->setFocus();
}

bool RecordWindow::mayLeave()
{
    if (!m_form->isChanged())
        return true;
    switch (askAboutChanges(this, m_records.table().title)) {
    case Changes::Save: return save().has_value();
    case Changes::Discard: return true;
    case Changes::Keep: break;
    }
    return false;
}

void RecordWindow::reject()
{
    bool mayClose = false;
    guarded([&] { mayClose = mayLeave(); });
    if (mayClose)
        QDialog::reject();
}

//! The list has come to another record.
void RecordWindow::showChosen()
{
    const qint64 id = m_list->chosen();
    if (id == 0 || id == m_form->loaded().id)
        return;
    guarded([&] {
        if (!mayLeave()) {
            m_list->choose(m_form->loaded().id);
            return;
        }
        if (const std::optional<Record> record = m_records.record(id)) {
            m_form->setRecord(*record);
            m_list->choose(id); // saving has read the list anew
            return;
        }
        sayGone();
    });
}

//! Another desk has removed the record that was asked for.
void RecordWindow::sayGone()
{
    m_form->setRecord(newRecord(m_records.table()));
    warn(this, m_records.table().title, QStringLiteral("Zapis został tymczasem usunięty na innym stanowisku."));
    m_list->refresh();
}

void RecordWindow::showRecord(const Record &record)
{
    m_form->setRecord(record);
    m_list->choose(record.id);
}

void RecordWindow::startNew()
{
    if (!mayLeave())
        return;
    showRecord(newRecord(m_records.table()));
    m_form->focusFirstField();
}

//! The record as it is saved, by whomever.
void RecordWindow::undo()
{
    const qint64 id = m_form->loaded().id;
    const std::optional<Record> now = id == 0 ? newRecord(m_records.table()) : m_records.record(id);
    if (now)
        m_form->setRecord(*now);
    else
        sayGone();
}

//! What was typed stays as it is.
void RecordWindow::refresh()
{
    m_store.wake();
    m_form->refreshLists();
    if (!m_form->isChanged())
        undo();
    m_list->refresh();
}

std::optional<qint64> RecordWindow::save()
{
    if (!kor::leaveFocusedField(this))
        return std::nullopt;
    const Record record = m_form->record();
    if (const auto problem = problemOf(m_records.table(), record, m_form->loaded())) {
        refuse(*problem);
        return std::nullopt;
    }
    try {
        return saveChanged(record);
    } catch (const StoreError &error) {
        warn(this, QStringLiteral("Baza danych"), error.text(),
             QStringLiteral("To, co wpisano, pozostaje w formularzu."));
        return std::nullopt;
    }
}

std::optional<qint64> RecordWindow::saveChanged(Record ours)
{
    Record loaded = m_form->loaded();
    for (;;) {
        const RecordOutcome outcome = m_records.save(ours, loaded);
        switch (outcome.kind) {
        case Kind::Done: showSaved(outcome.record); return outcome.record.id;
        case Kind::Refused: refuse(outcome.problem); return std::nullopt;
        case Kind::DeletedMeanwhile:
            if (!mayAddAnew(ours))
                return std::nullopt;
            ours.id = 0;
            break;
        case Kind::ChangedMeanwhile:
            if (!decide(loaded, outcome.record, ours))
                return std::nullopt;
            loaded = outcome.record;
            break;
        }
    }
}

bool RecordWindow::decide(const Record &loaded, const Record &theirs, Record &ours)
{
    const QList<qsizetype> fields = differences(loaded, ours, theirs);
    Record decided = ours;
    QList<Conflict> conflicts;
    for (qsizetype at = 0; at < theirs.values.size(); ++at) {
        const QVariant &our = ours.values.at(at);
        const QVariant &before = loaded.values.at(at);
        if (fields.contains(at))
            conflicts.append({m_records.table().fields.at(at).name(), m_form->textOf(at, before),
                              m_form->textOf(at, our), m_form->textOf(at, theirs.values.at(at)), our != before});
    }
    if (conflicts.isEmpty())
        return true; // the same was changed to the same
    ConflictDialog dialog(calledAs(m_records.table().whom, loaded), conflicts, this);
    return orders::decide(dialog, [&](const ConflictDialog &choice) {
        decided = ours;
        for (qsizetype at = 0; at < fields.size(); ++at) {
            if (choice.takesTheirs(at))
                decided.values[fields.at(at)] = theirs.values.at(fields.at(at));
        }
        ours = decided;
        return QString();
    });
}

bool RecordWindow::mayAddAnew(const Record &gone)
{
    const QString question = QStringLiteral("%1 usunięto tymczasem na innym stanowisku.\nDodać na nowo?")
                                 .arg(calledAs(m_records.table().whom, gone));
    return ask(this, m_records.table().title, question, {QStringLiteral("&Dodaj"), QStringLiteral("&Anuluj")}) == 0;
}

void RecordWindow::showSaved(const Record &saved)
{
    m_hasSaved = true;
    m_form->setRecord(saved);
    m_list->refresh();
    m_said->setText(QStringLiteral("Zapisano: %1.").arg(nameOf(m_records.table(), saved)));
    Q_EMIT changed(saved.id);
}

//! The clerk goes on with this record, though it is none of those that were searched for.
void RecordWindow::stayOn(qint64 id)
{
    if (m_list->choose(id))
        return;
    m_list->search({});
    m_list->choose(id);
}

void RecordWindow::refuse(const RecordProblem &problem)
{
    warn(this, m_records.table().one, problem.text);
    m_form->focusField(problem.field);
}

void RecordWindow::remove()
{
    Record record = m_form->loaded();
    if (record.id == 0)
        return;
    const QString whom = calledAs(m_records.table().whom, record);
    QString question = QStringLiteral("%1: usunąć?").arg(calledAs(m_records.table().one, record));
    for (;;) {
        if (ask(this, m_records.table().title, question, {QStringLiteral("&Usuń"), QStringLiteral("&Anuluj")}) != 0)
            return;
        const RecordOutcome outcome = m_records.remove(record);
        if (outcome.kind == Kind::Refused) {
            warn(this, m_records.table().one, outcome.problem.text);
            return;
        }
        if (outcome.kind != Kind::ChangedMeanwhile)
            break;
        record = outcome.record;
        question = QStringLiteral("%1 zmieniono i zapisano tymczasem na innym stanowisku. Usunąć mimo to?").arg(whom);
    }
    m_hasSaved = true;
    m_form->setRecord(newRecord(m_records.table()));
    m_list->refresh();
    m_said->setText(QStringLiteral("Usunięto: %1.").arg(nameOf(m_records.table(), record)));
    Q_EMIT changed(record.id);
}

QString RecordWindow::calledAs(const QString &what, const Record &record) const
{
    return QStringLiteral("%1 „%2”").arg(what, nameOf(m_records.table(), record));
}

void RecordWindow::updateState()
{
    const bool isNew = m_form->loaded().id == 0;
    const bool isChanged = m_form->isChanged();
    const QString name = isNew ? m_records.table().newOne : nameOf(m_records.table(), m_form->loaded());
    setWindowTitle(QStringLiteral("%1[*] – %2").arg(name, m_records.table().title));
    setWindowModified(isChanged);
    m_save->setEnabled(isChanged);
    m_undo->setEnabled(isChanged);
    m_remove->setEnabled(!isNew);
}

} // namespace orders
