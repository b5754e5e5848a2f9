// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/locale.h>

#include <QtCore/QLocale>
#include <QtCore/QMutex>

#include <atomic>
#include <list>

namespace kor {

namespace {

//! The process default and every locale that ever was it: callers hold references.
class DefaultLocale
{
public:
    const Locale &get()
    {
        if (const Locale *current = m_current.load(std::memory_order_acquire))
            return *current;
        const QMutexLocker lock(&m_mutex);
        if (!m_current.load(std::memory_order_relaxed))
            install(Locale::fromQLocale(QLocale::system()));
        return *m_current.load(std::memory_order_relaxed);
    }

    void set(const Locale &locale)
    {
        const QMutexLocker lock(&m_mutex);
        install(locale);
    }

private:
    void install(const Locale &locale)
    {
        for (const Locale &known : m_known) {
            if (known == locale) {
                m_current.store(&known, std::memory_order_release);
                return;
            }
        }
        m_known.push_back(locale);
        m_current.store(&m_known.back(), std::memory_order_release);
    }

    QMutex m_mutex;
    std::list<Locale> m_known;
    std::atomic<const Locale *> m_current = nullptr;
};

DefaultLocale &defaultLocale()
{
    // Never destroyed: a host's static objects may still format while the process ends.
    static auto *const instance = new DefaultLocale;
    return *instance;
}

} // namespace

const Locale &Locale::systemDefault() { return defaultLocale().get(); }

void Locale::setSystemDefault(const Locale &locale) { defaultLocale().set(locale); }

} // namespace kor
