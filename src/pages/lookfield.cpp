// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/lookfield.h"

#include "constituents/errorguard.h"
#include "pages/colorchooser.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QFont>
#include <QtWidgets/QFontDialog>
#include <QtWidgets/QPushButton>

#include <utility>

namespace kor {

namespace {

//! A button that shows what is chosen, and opens a dialog to choose another.
class ChoiceButton : public QPushButton
{
public:
    ChoiceButton(QWidget *page, std::function<void()> edited) : QPushButton(page), m_edited(std::move(edited))
    {
        setAutoDefault(false);
        connect(this, &QPushButton::clicked, this, [this] { guarded(this, [this] { choose(); }); });
    }

protected:
    //! Opens the dialog. True when something was chosen; the button may be gone when it was not.
    virtual bool ask() = 0;

private:
    void choose()
    {
        const auto edited = m_edited; // outlives the button
        if (ask())
            edited();
    }

    std::function<void()> m_edited;
};

//! Runs a dialog that may go with the page while it is open; gives it to the body if something was chosen.
template <class Dialog, class Body>
bool accepted(Dialog *opened, Body &&body)
{
    const QPointer<Dialog> dialog = opened;
    const bool isChosen = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return false;
    const bool isTaken = isChosen && body(*dialog);
    delete dialog;
    return isTaken;
}

class ColorButton final : public ChoiceButton
{
public:
    using ChoiceButton::ChoiceButton;

    [[nodiscard]] OLE_COLOR color() const { return m_color; }
    void setColor(OLE_COLOR color)
    {
        m_color = color;
        setText(colorName(color));
        setIconSize(QSize(2, 1) * fontMetrics().height());
        setIcon(colorPicture(color, *this));
    }

protected:
    bool ask() override
    {
        return accepted(new ColorChooser(m_color, this), [this](const ColorChooser &dialog) {
            const auto chosen = dialog.color();
            if (chosen)
                setColor(*chosen);
            return chosen.has_value();
        });
    }
    void changeEvent(QEvent *event) override
    {
        QPushButton::changeEvent(event);
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
            setColor(m_color);
    }

private:
    OLE_COLOR m_color = WindowBackground;
};

class FontButton final : public ChoiceButton
{
public:
    using ChoiceButton::ChoiceButton;

    [[nodiscard]] QFont chosenFont() const { return m_font; }
    void setChosenFont(const QFont &font)
    {
        m_font = font;
        QString text = QStringLiteral("%1, %2").arg(font.family(), CStr(font.pointSizeF()));
        if (font.bold())
            text += QStringLiteral(", pogrubiona");
        if (font.italic())
            text += QStringLiteral(", kursywa");
        setText(text);
    }

protected:
    bool ask() override
    {
        auto *dialog = new QFontDialog(m_font, this);
        dialog->setWindowTitle(QStringLiteral("Czcionka"));
        return accepted(dialog, [this](const QFontDialog &chosen) {
            setChosenFont(chosen.selectedFont());
            return true;
        });
    }

private:
    QFont m_font;
};

class ColorField final : public PageField
{
public:
    ColorField(QWidget *page, std::function<void()> edited) : m_button(new ColorButton(page, std::move(edited))) {}
    [[nodiscard]] QWidget *widget() const override { return m_button; }
    void show(const QVariant &value) override { m_button->setColor(CLng(normalized(value))); }
    [[nodiscard]] QVariant value() const override { return m_button->color(); }

private:
    ColorButton *m_button;
};

class FontField final : public PageField
{
public:
    FontField(QWidget *page, std::function<void()> edited) : m_button(new FontButton(page, std::move(edited))) {}
    [[nodiscard]] QWidget *widget() const override { return m_button; }
    void show(const QVariant &value) override
    {
        if (value.typeId() != QMetaType::QFont)
            throw RunTimeError(ErrorNumber::TypeMismatch);
        m_button->setChosenFont(value.value<QFont>());
    }
    [[nodiscard]] QVariant value() const override { return m_button->chosenFont(); }

private:
    FontButton *m_button;
};

} // namespace

std::unique_ptr<PageField> makeColorField(QWidget *page, std::function<void()> edited)
{
    return std::make_unique<ColorField>(page, std::move(edited));
}

std::unique_ptr<PageField> makeFontField(QWidget *page, std::function<void()> edited)
{
    return std::make_unique<FontField>(page, std::move(edited));
}

} // namespace kor
