// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/clock.h>

#include <QtCore/QMutex>

#include <utility>

namespace kor::Clock {

namespace {

struct Source {
    QMutex mutex;
    std::function<QDate()> today;
};

Source &source()
{
    // Never destroyed: a host's static objects may still ask while the process ends.
    static auto *const instance = new Source;
    return *instance;
}

} // namespace

QDate today()
{
    std::function<QDate()> current;
    {
        const QMutexLocker lock(&source().mutex);
        current = source().today;
    }
    // Called outside the lock: a host's function may well ask for the system's date through this one.
    return current ? current() : QDate::currentDate();
}

void setSource(std::function<QDate()> newSource)
{
    const QMutexLocker lock(&source().mutex);
    source().today = std::move(newSource);
}

} // namespace kor::Clock
