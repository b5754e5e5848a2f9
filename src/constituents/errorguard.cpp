// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/errorguard.h"

#include "constituents/messagebox.h"

#include <KorDaoUC/errorhandler.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QObject>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <utility>

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

} // namespace

void setUnhandledErrorHandler(Handler handler) { handlerInUse() = std::move(handler); }

void reportError(QObject *source, const RunTimeError &error)
{
    for (QObject *place = source; place; place = place->parent()) {
        const QMetaObject *type = place->metaObject();
        const int event = type->indexOfSignal(errorEvent);
        if (event < 0)
            continue;
        int number = error.number();
        QString description = error.description();
        bool handled = false;
        type->method(event).invoke(place, Qt::DirectConnection, Q_ARG(int &, number), Q_ARG(QString &, description),
                                   Q_ARG(bool &, handled));
        if (handled)
            return;
        break;
    }
    if (const Handler handler = handlerInUse())
        handler(source, error);
    else
        showError(source, error);
}

} // namespace kor
