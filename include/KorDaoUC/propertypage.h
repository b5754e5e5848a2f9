// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

class QVariant;

namespace kor {

//! Who writes properties in place of a page: a designer that keeps an undo history, for instance.
class KORDAOUC_EXPORT PropertyWriter
{
public:
    virtual ~PropertyWriter();
    //! Sets a property. Raises what the control raises for a value that it refuses.
    virtual void write(QObject &control, const QString &property, const QVariant &value) = 0;
    //! Runs what changes a control by a method of its own, and raises what that raises.
    virtual void call(QObject &control, const std::function<void()> &deed);
    //! What is written between these two belongs together. They come in pairs, pairs within pairs too.
    virtual void beginApply() {}
    //! Ends what beginApply() began.
    virtual void endApply() noexcept {}
};

//! A page on which a programmer sets controls that he has selected. It knows them by the names of their members only,
//! and takes any object that has those.
//!
//! Direct and late-bound calls raise RunTimeError: 438 where a control has no such member, and whatever a control
//! raises for a value that it refuses. What arises behind a click on the page is its Error event instead.
class KORDAOUC_EXPORT PropertyPage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool Changed READ Changed WRITE setChanged NOTIFY applyDue)

public:
    ~PropertyPage() override;

    //! Whether something was edited that ApplyChanges() would write.
    [[nodiscard]] bool Changed() const;
    void setChanged(bool changed);
    //! The selected controls that are still there.
    [[nodiscard]] Q_INVOKABLE QObjectList SelectedControls() const;
    //! Selects controls and shows them. They may be deleted at any time.
    Q_INVOKABLE void setSelectedControls(const QObjectList &controls);
    //! Reads the controls again; edits that were not applied are given up, and the page is not changed any more.
    Q_INVOKABLE void SelectionChanged();
    //! Writes what there is to write; then the page is not changed any more. When a control raises an error, what was
    //! written stays written, and the page stays changed.
    Q_INVOKABLE void ApplyChanges();

    //! Has properties written by someone else, who must outlive the page; null brings the page's own way back.
    void setWriter(PropertyWriter *writer);

Q_SIGNALS:
    //! Changed has become another: there is something to apply, or no longer.
    void applyDue(bool due);
    //! An error arose behind a click or a choice on the page. A handler that sets Handled keeps it from the host's
    //! unhandled-error handler.
    void Error(int &Number, QString &Description, bool &Handled);

protected:
    explicit PropertyPage(QWidget *parent);

    //! Fills the fields from the selected controls. What changes on the page meanwhile is no edit.
    virtual void readControls() = 0;
    //! Writes the fields to the selected controls. Handlers of theirs may delete them, or the page.
    virtual void writeControls() = 0;

    //! The control that the page shows; null when none is selected, or when it is gone.
    [[nodiscard]] QObject *firstControl() const;
    //! The user has edited something. Says nothing while the page is reading.
    void markChanged();
    //! Runs what changes the fields without editing them.
    void silently(const std::function<void()> &body);
    //! Sets a property as the host wants it set.
    void writeProperty(QObject &control, const char *property, const QVariant &value);
    //! Changes a control by a method of its own, likewise.
    void change(QObject &control, const std::function<void()> &deed);

private:
    class Private;
    std::shared_ptr<Private> d; // outlives the page while that is at work
};

} // namespace kor
