// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "random/form.h"
#include "random/steps.h"

#include <QtCore/QTimer>

namespace kor::test {

//! Does the steps of a day on a form, and looks after each whether everything is still as every control promises.
class RandomUser
{
public:
    //! Keeps to the controls of one name, unless that is empty; the others stand beside them.
    explicit RandomUser(const QString &only = QString());
    ~RandomUser();

    //! What is wrong after the step; empty when nothing is.
    [[nodiscard]] QString work(const Step &step);
    //! What the step does on this form, for people.
    [[nodiscard]] QString description() const { return m_description; }

private:
    void act(const Step &step);
    void pressKey(const Step &step);
    void typeText(const QString &text);
    void sendToInputMethod(const QString &composed, const QString &finished);
    void paste(const Step &step);
    void drop(const Step &step);
    void click(const Step &step);
    void clickPopup(const Step &step);
    void drag(const Step &step);
    void wheel(const Step &step);
    void moveFocus(const Step &step);
    void show(const Step &step);
    void set(const Step &step);
    void call(const Step &step);
    [[nodiscard]] QString save(const Step &step);
    void remember();
    [[nodiscard]] QString lookAround(const Step &step);
    [[nodiscard]] QString lookAt(Place &place, const Step &step, bool isUsersDoingAlone);
    [[nodiscard]] bool mayDelete(const Step &step) const;
    [[nodiscard]] StepTaken taken(const Step &step, bool isUsersDoingAlone) const;
    [[nodiscard]] QWindow *target() const;
    void answerDialogs();

    Form m_form;
    QTimer m_dialogs;
    int m_menuTicks = 0;
    int m_messages = 0; //!< that came during the step
    bool m_hasTypedAhead = false;
    bool m_hadPopup = false; //!< as the step began
    QString m_description;
    QString m_found;
};

} // namespace kor::test
