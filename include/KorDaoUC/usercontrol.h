// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/color.h>
#include <KorDaoUC/enumerations.h>
#include <KorDaoUC/export.h>
#include <KorDaoUC/lateboundwidget.h>
#include <KorDaoUC/savedsetting.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtGui/QFont>
#include <QtWidgets/QWidget>

#include <memory>

namespace kor {

class FocusClient;
class PropertyBag;
class RunTimeError;

//! What all eleven controls are: a widget that fills itself with its constituents, keeps its settings in a property
//! bag, and offers every public member late-bound by its exact name.
//!
//! Direct and late-bound calls raise RunTimeError. Errors that arise while the control handles a key, a click or a
//! timer are raised as the Error event instead.
class KORDAOUC_EXPORT UserControl : public LateBoundWidget
{
    Q_OBJECT
    Q_PROPERTY(int BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(int ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(QFont Font READ Font WRITE setFont)
    // The toolkit's names for the same things: one of each is enough for the form designer.
    Q_PROPERTY(bool enabled READ Enabled WRITE setEnabled DESIGNABLE false STORED false)
    Q_PROPERTY(QFont font READ Font WRITE setFont DESIGNABLE false STORED false)

public:
    ~UserControl() override;

    [[nodiscard]] OLE_COLOR BackColor() const;
    void setBackColor(OLE_COLOR color);
    [[nodiscard]] OLE_COLOR ForeColor() const;
    void setForeColor(OLE_COLOR color);
    //! Whether the control itself is enabled; a disabled form around it does not count.
    [[nodiscard]] bool Enabled() const;
    void setEnabled(bool enabled);
    //! The font of the main constituent. The ambient font, unless another one was set.
    [[nodiscard]] QFont Font() const;
    void setFont(const QFont &font);
    //! Repaints; the lists reload their entries.
    Q_INVOKABLE virtual void Refresh();

    //! Gives a control that was newly dropped on a form its initial settings.
    Q_INVOKABLE virtual void initProperties() = 0;
    //! Applies saved settings, in the order of the control's own table; a missing key yields its default. Raises
    //! error 13 for a value of the wrong kind.
    Q_INVOKABLE virtual void readProperties(const kor::PropertyBag &bag) = 0;
    //! Writes the settings that differ from their defaults, in the order of the control's own table.
    Q_INVOKABLE virtual void writeProperties(kor::PropertyBag &bag) const = 0;
    //! The settings in the order of the control's own table; a key that stands there twice is listed twice. Nothing
    //! for a control that does not tell.
    [[nodiscard]] virtual QList<kor::SavedSetting> savedSettings() const;

    //! False at design time. Asked of the form around the control.
    [[nodiscard]] Q_INVOKABLE bool UserMode() const;
    //! Tells all controls on a form whether they are run or designed. Forms are run unless told otherwise.
    static void setUserMode(QWidget *form, bool userMode);
    //! Does nothing. Kept: the form designer once saved UserMode with a control, and such forms are still compiled.
    void setUserMode(bool) {}
    //! The font of the form around the control, and whether the control shows it.
    [[nodiscard]] bool usesAmbientFont() const;
    //! The font of the form around the control.
    [[nodiscard]] QFont ambientFont() const;
    //! Gives up a font of its own: from now on the control shows the ambient one.
    void useAmbientFont();

    //! The size that the form or the program gave the control, which is what a form is saved with. The control itself
    //! may be lower: a list shows whole rows. A height that only the font decides, as that of a drop-down list, was
    //! given by nobody and is 0.
    [[nodiscard]] virtual QSize givenSize() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    //! A saved setting has changed, so the form must be saved again.
    void PropertyChanged(const QString &PropertyName);
    //! An error arose while the control handled an event. A handler that sets Handled keeps it from the host's
    //! unhandled-error handler.
    void Error(int &Number, QString &Description, bool &Handled);

protected:
    explicit UserControl(QWidget *parent);

    //! Names the constituent whose look is the control's: it takes colours and font, and the control's focus. It
    //! starts with the colours of fields, or with its own.
    void setMainConstituent(QWidget *constituent);
    //! The same with colours of its own to start with.
    void setMainConstituent(QWidget *constituent, OLE_COLOR back, OLE_COLOR fore);
    //! The constituent named by setMainConstituent(); null before that.
    [[nodiscard]] QWidget *mainConstituent() const;
    //! The native window that the main constituent is drawn in: its own, or the one of the form around it.
    [[nodiscard]] int mainWindowHandle() const;
    //! Whether the form shows through the main constituent in place of its background colour.
    [[nodiscard]] bool isBackTransparent() const;
    //! Lets the form show through the main constituent, or paints its background.
    void setBackTransparent(bool transparent);
    //! Names who hears of the focus; part of the control, and gone with it.
    void setFocusClient(FocusClient *client);
    //! Reports a Let to the host; the name is the property's own.
    void propertyChanged(const char *name);
    //! A Let that a constituent answers: sets the property there, then reports the change.
    template <class Constituent, class Owner, class Argument, class Value>
    void delegate(const char *name, Constituent *constituent, void (Owner::*setter)(Argument), const Value &value)
    {
        const QPointer<UserControl> self = this; // a handler of the constituent's Change may end the control
        (constituent->*setter)(value);
        if (self)
            propertyChanged(name);
    }

    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    //! Places the constituents in the control's area. Called at each resize and change of font, style or direction.
    virtual void layoutConstituents();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace kor
