// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QDialog>

#include <functional>
#include <vector>

class QPushButton;
class QRadioButton;

namespace orders {

//! A field that was changed meanwhile, in the clerk's words.
struct Conflict {
    QString name;
    QString before; //!< as it was when it was opened here
    QString ours;
    QString theirs;
    bool isOurs = false; //!< it was changed here too: nobody but the clerk can tell which is right
};

//! Tells the clerk what another desk has saved meanwhile, and asks field by field what is to be kept. A field that was
//! not touched here is proposed as it was saved there; one that was changed at both desks has to be decided.
class ConflictDialog : public QDialog
{
    Q_OBJECT

public:
    //! `whom` is what was changed meanwhile: "Zamówienie ZAM/2026/0001".
    ConflictDialog(const QString &whom, const QList<Conflict> &conflicts, QWidget *parent = nullptr);

    //! Whether the clerk takes what the other desk saved in this field.
    [[nodiscard]] bool takesTheirs(qsizetype field) const;

private:
    struct Choice {
        QRadioButton *ours;
        QRadioButton *theirs;
    };
    [[nodiscard]] QWidget *choiceOf(const Conflict &conflict);
    void updateState();

    std::vector<Choice> m_choices;
    QPushButton *m_save = nullptr;
};

//! Has the clerk decide, and gives the decision to what takes it over; where that answers with a problem it is told,
//! and the choice is made anew. False when the clerk went back to the form.
[[nodiscard]] bool decide(ConflictDialog &dialog, const std::function<QString(const ConflictDialog &)> &takeOver);

} // namespace orders
