// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pictures.h"

#include "listwindow.h"
#include "orderlines.h"
#include "orderwindow.h"

#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorNumber>

#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <functional>

namespace orders {

namespace {

constexpr int titleHeight = 30;
constexpr int margin = 12;
constexpr int settleTime = 120; // milliseconds, as the other times
constexpr int pollTime = 20;
constexpr int longestWait = 5000;
constexpr int orderShown = 100; // one with everything filled in
constexpr QPoint beside(330, 290);
constexpr QPoint besideTitle(40, 60);

void settle(int milliseconds = settleTime)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void press(Qt::Key key, const QString &text = {})
{
    QWidget *target = QApplication::focusWidget();
    if (!target)
        return;
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(target, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    if (QWidget *now = QApplication::focusWidget())
        QApplication::sendEvent(now, &up);
}

void type(const QString &text)
{
    for (const QChar character : text)
        press(static_cast<Qt::Key>(character.toUpper().unicode()), QString(character));
}

bool hasTitle(const QWidget &window) { return window.windowType() != Qt::Popup && window.windowType() != Qt::ToolTip; }

QRect outline(const QWidget &window)
{
    return hasTitle(window) ? window.geometry().adjusted(-1, -titleHeight, 1, 1) : window.geometry();
}

void drawTitle(QPainter &painter, const QWidget &window)
{
    const QRect outside = outline(window);
    QRect bar = outside;
    bar.setHeight(titleHeight);
    painter.fillRect(outside, QColor(0x3b, 0x4a, 0x5f));
    QFont font = window.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QString title = window.windowTitle().replace(QStringLiteral("[*]"),
                                                       window.isWindowModified() ? QStringLiteral("*") : QString());
    painter.drawText(bar, Qt::AlignCenter, title);
}

//! The windows as they lie on the screen. There is no window manager to draw their frames, so the titles are drawn
//! here.
QPixmap screenPicture(const QWidget &main)
{
    QList<QWidget *> windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            windows << window;
    }
    // The main window lies below its dialogs, and they below their lists.
    std::stable_sort(windows.begin(), windows.end(), [&main](const QWidget *left, const QWidget *right) {
        const auto level = [&main](const QWidget *window) { return window == &main ? 0 : hasTitle(*window) ? 1 : 2; };
        return level(left) < level(right);
    });
    QRect all;
    for (const QWidget *window : windows)
        all |= outline(*window);
    all.adjust(-margin, -margin, margin, margin);

    QPixmap picture(all.size());
    picture.fill(QColor(0xd6, 0xdd, 0xe6));
    QPainter painter(&picture);
    painter.translate(-all.topLeft());
    for (QWidget *window : windows) {
        if (hasTitle(*window))
            drawTitle(painter, *window);
        painter.drawPixmap(window->geometry().topLeft(), window->grab());
    }
    return picture;
}

class Photographer
{
public:
    Photographer(OrderWindow &window, const QDir &folder) : m_window(window), m_folder(folder) {}

    void take(const QString &name)
    {
        settle();
        const QString file = m_folder.filePath(name + QStringLiteral(".png"));
        const bool written = screenPicture(m_window).save(file);
        QTextStream(stdout) << (written ? "" : "not written: ") << file << '\n';
        m_good = m_good && written;
    }

    //! Does what opens a dialog, takes its picture and answers it with Escape.
    void takeOfDialog(const QString &name, const std::function<void()> &open,
                      const std::function<void(QDialog &)> &inside = {})
    {
        // The dialog runs a loop of its own, so it is looked for from a timer.
        bool isTaken = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &m_window, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            watch.stop();
            settle(); // until it has the keyboard
            if (inside)
                inside(*dialog);
            take(name);
            isTaken = true;
            dialog->reject();
        });
        watch.start(pollTime);
        open();
        for (int waited = 0; !isTaken && waited < longestWait; waited += settleTime)
            settle();
        m_good = m_good && isTaken;
    }

    [[nodiscard]] bool isGood() const { return m_good; }

private:
    OrderWindow &m_window;
    QDir m_folder;
    bool m_good = true;
};

void takeFields(Photographer &photographer, OrderForm &form)
{
    for (int press = 1; press < orderShown; ++press)
        form.button("cmdNext")->click();
    photographer.take(QStringLiteral("order"));

    auto *list = form.findChild<KorCombo *>(QStringLiteral("cmbCustomer"))->findChild<QComboBox *>();
    list->showPopup();
    photographer.take(QStringLiteral("list"));
    list->hidePopup();

    form.findChild<KorDate *>(QStringLiteral("datDelivery"))->setFocus(Qt::TabFocusReason);
    settle();
    press(Qt::Key_F4);
    photographer.take(QStringLiteral("calendar"));
    press(Qt::Key_Escape);
    settle();
}

void takeMessages(Photographer &photographer, OrderWindow &window)
{
    window.form().findChild<KorNumber *>(QStringLiteral("numDiscount"))->setFocus(Qt::TabFocusReason);
    settle();
    photographer.takeOfDialog(
        QStringLiteral("range"),
        [] {
            type(QStringLiteral("150"));
            press(Qt::Key_Tab);
        },
        [&window](QDialog &message) { message.move(window.pos() + beside); }); // so that the number is seen
    photographer.takeOfDialog(QStringLiteral("question"), [&window] { window.close(); });
}

//! A new line is being typed, and its product chosen from a part of its name.
void takeLines(Photographer &photographer, OrderWindow &window)
{
    OrderLines &lines = window.form().lines();
    lines.addLine();
    settle();
    type(QStringLiteral("gniaz"));
    photographer.takeOfDialog(
        QStringLiteral("product"), [] { press(Qt::Key_F4); },
        [&window](QDialog &chooser) { chooser.move(window.pos() + beside); });
    lines.goTo(1, LineField::Name);
    settle();
    type(QStringLiteral(" – z uchwytem ściennym, dostarczyć razem z instrukcją w języku polskim"));
    photographer.take(QStringLiteral("lines"));
}

void takeDialogs(Photographer &photographer, OrderWindow &window)
{
    photographer.takeOfDialog(
        QStringLiteral("search"), [&window] { window.search(); }, [](QDialog &) { type(QStringLiteral("ślus")); });
    photographer.takeOfDialog(
        QStringLiteral("customers"), [&window] { window.keepCustomers(); },
        [](QDialog &) { type(QStringLiteral("ślus")); });
    photographer.takeOfDialog(
        QStringLiteral("products"), [&window] { window.keepProducts(); },
        [](QDialog &) {
            type(QStringLiteral("gniaz"));
            press(Qt::Key_Return); // to the fields
        });
    photographer.takeOfDialog(QStringLiteral("settings"), [&window] { window.settings(); });
    photographer.takeOfDialog(
        QStringLiteral("report"), [&window] { window.report(); },
        [](QDialog &) {
            type(QStringLiteral("01012025")); // the samples are of this year and the next
            press(Qt::Key_Enter);             // takes the value
            press(Qt::Key_Enter);
        });
}

void takeList(Photographer &photographer, OrderWindow &window)
{
    ListWindow &list = window.list();
    list.move(window.pos() + besideTitle);
    settle();
    list.findChild<KorDate *>(QStringLiteral("datFrom"))->setFocus(Qt::TabFocusReason);
    settle();
    type(QStringLiteral("01012026"));
    press(Qt::Key_Enter);
    photographer.take(QStringLiteral("orders"));
    list.close();
}

} // namespace

bool takePictures(OrderWindow &window, const QString &folder)
{
    const QDir directory(folder);
    if (!directory.mkpath(QStringLiteral(".")))
        return false;
    window.move(40, 60);
    window.show();
    window.activateWindow();
    settle();

    Photographer photographer(window, directory);
    takeFields(photographer, window.form());
    const Order shown = window.form().order();
    takeMessages(photographer, window);
    window.form().setOrder(shown);
    takeLines(photographer, window);
    window.form().setOrder(shown);
    takeDialogs(photographer, window);
    takeList(photographer, window);
    return photographer.isGood();
}

} // namespace orders
