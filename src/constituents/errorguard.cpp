// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/errorguard.h"

#include "constituents/messagebox.h"

#include <KorDaoUC/errorhandler.h>

#include <QtCore/QLoggingCategory>
#include <QtCore/QMetaMethod>
#include <QtCore/QScopeGuard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <new>
#include <optional>
#include <utility>
#include <vector>

namespace kor {

namespace {

constexpr char errorEvent[] = "Error(int&,QString&,bool&)";

using Handler = std::function<void(QObject *, const RunTimeError &)>;

Handler &handlerInUse()
{
    static Handler handler;
    return handler;
}

//! The name of the control around the source, or else its own.
QString nameOf(const QObject *source)
{
    for (const QObject *place = source; place; place = place->parent()) {
        if (place->metaObject()->indexOfSignal(errorEvent) >= 0)
            return place->objectName();
    }
    return source ? source->objectName() : QString();
}

//! Speaks to the clerk; number, description and field are for those who look after the program.
void showError(QObject *source, const RunTimeError &error)
{
    QString facts = QStringLiteral("Błąd %1: %2").arg(error.number()).arg(error.description());
    if (const QString name = nameOf(source); !name.isEmpty())
        facts += QStringLiteral("\nPole: ") + name;
    exclaim(qobject_cast<QWidget *>(source),
            QStringLiteral("Program napotkał nieoczekiwany błąd i nie dokończył ostatniej czynności. Sprawdź zawartość "
                           "pola, zanim przejdziesz dalej."),
            QStringLiteral("Błąd programu"),
            QStringLiteral("Jeśli błąd się powtarza, przekaż opiekunowi programu te dane:\n") + facts);
}

//! Whose handlers are at work on an error, innermost last; nullptr stands for the unhandled-error handler.
std::vector<const QObject *> &atWork()
{
    static std::vector<const QObject *> places;
    return places;
}

bool isAtWork(const QObject *place) { return std::find(atWork().cbegin(), atWork().cend(), place) != atWork().cend(); }

RunTimeError errorOf(const std::exception_ptr &thrown)
{
    try {
        std::rethrow_exception(thrown);
    } catch (const RunTimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return RunTimeError(ErrorNumber::OutOfMemory);
    } catch (const std::exception &error) {
        return RunTimeError(ErrorNumber::InternalError, QString::fromLocal8Bit(error.what()));
    } catch (...) { // a host may throw what it likes
        return RunTimeError(ErrorNumber::InternalError);
    }
}

//! Runs a handler of an error, and gives the error that it ended with.
template <class Body>
std::optional<RunTimeError> atWorkFor(const QObject *place, Body &&body)
{
    atWork().push_back(place);
    const auto leave = qScopeGuard([] { atWork().pop_back(); });
    try {
        body();
        return std::nullopt;
    } catch (...) {
        return errorOf(std::current_exception());
    }
}

} // namespace

void setUnhandledErrorHandler(Handler handler) { handlerInUse() = std::move(handler); }

ErrorPath::ErrorPath(QObject *source)
{
    for (QObject *place = source; place; place = place->parent())
        m_places.append(place);
}

void ErrorPath::report(const std::exception_ptr &thrown) const noexcept
{
    try {
        goOutward(0, errorOf(thrown));
    } catch (...) {
        qCritical("An error could not be reported.");
    }
}

void ErrorPath::goOutward(qsizetype from, const RunTimeError &error) const
{
    for (qsizetype i = from; i < m_places.size(); ++i) {
        QObject *place = m_places[i];
        const int event = place ? place->metaObject()->indexOfSignal(errorEvent) : -1;
        if (event < 0 || isAtWork(place))
            continue;
        int number = error.number();
        QString description = error.description();
        bool handled = false;
        const auto further = atWorkFor(place, [&] {
            place->metaObject()->method(event).invoke(place, Qt::DirectConnection, Q_ARG(int &, number),
                                                      Q_ARG(QString &, description), Q_ARG(bool &, handled));
        });
        if (further) {
            goOutward(i + 1, error);
            goOutward(i + 1, *further);
            return;
        }
        if (handled)
            return;
    }
    endWith(error);
}

void ErrorPath::endWith(const RunTimeError &error) const
{
    if (isAtWork(nullptr)) {
        qWarning("%s", error.what());
        return;
    }
    const auto alive = std::find_if(m_places.cbegin(), m_places.cend(),
                                    [](const QPointer<QObject> &place) { return !place.isNull(); });
    QObject *source = alive != m_places.cend() ? alive->data() : nullptr;
    const auto further = atWorkFor(nullptr, [&] {
        if (const Handler handler = handlerInUse())
            handler(source, error);
        else
            showError(source, error);
    });
    if (further)
        qWarning("%s", further->what());
}

} // namespace kor
