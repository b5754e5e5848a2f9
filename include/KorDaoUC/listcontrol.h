// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/dictionarycontrol.h>

#include <memory>

namespace kor {

class ListBox;

//! What the two open lists share beside their entries. Their height is always a whole number of entries: it snaps to
//! as many as fit.
//!
//! Keys are found by the run-time's strict equality: the text 1 is not the number 1. `BlockUpDown` keeps Up and Down
//! from being raised as `KeyDown`; they move the selection all the same.
class KORDAOUC_EXPORT ListControl : public DictionaryControl
{
    Q_OBJECT
    Q_PROPERTY(kor::AppearanceType Appearance READ Appearance WRITE setAppearance)
    Q_PROPERTY(kor::BorderStyleType BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(int hWnd READ hWnd DESIGNABLE false STORED false)
    Q_PROPERTY(QString ToolTipText READ ToolTipText WRITE setToolTipText)

public:
    ~ListControl() override;

    [[nodiscard]] kor::AppearanceType Appearance() const;
    void setAppearance(kor::AppearanceType appearance);
    //! Kept and saved for the host; the list looks the same with either. Error 380 for any other value.
    [[nodiscard]] kor::BorderStyleType BorderStyle() const;
    void setBorderStyle(kor::BorderStyleType style);
    //! The identifier of the native window that the list is drawn in.
    [[nodiscard]] int hWnd() const;
    //! Kept and saved for the host. The tip that the list shows is the saved setting HelpText.
    [[nodiscard]] QString ToolTipText() const;
    void setToolTipText(const QString &text);

    void initProperties() override;
    [[nodiscard]] QSize givenSize() const override;

protected:
    ListControl(QWidget *parent, const DictionaryRules &rules);

    //! Names the list that shows the entries, and listens to its selection, keys and height.
    void setListBox(ListBox *box);

    //! The tip that the list shows.
    [[nodiscard]] QString HelpText() const;
    void setHelpText(const QString &text);

    void layoutConstituents() override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace kor
