// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/heldevents.h"

#include <KorDaoUC/errorhandler.h>

#include <QtTest/QtTest>

#include <memory>

using namespace kor;

//! Events that wait until what causes them is done.
class tst_HeldEvents : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_owner = std::make_unique<QObject>();
        m_raised = 0;
        m_deed = [] {};
        m_events = std::make_unique<HeldEvents>(m_owner.get(), [this] {
            ++m_raised;
            m_deed();
        });
    }
    void cleanup() { setUnhandledErrorHandler({}); }

    void areRaisedAfterTheBody()
    {
        m_events->during([&] {
            m_events->raise();
            QCOMPARE(m_raised, 0);
            QVERIFY(m_events->areHeld());
        });
        QCOMPARE(m_raised, 1);
        QVERIFY(!m_events->areHeld());
    }

    void areRaisedAtOnceWithoutABody()
    {
        m_events->raise();
        QCOMPARE(m_raised, 1);
    }

    void anInnerBodyLeavesThemToTheOuterOne()
    {
        m_events->during([&] {
            m_events->during([] {});
            QCOMPARE(m_raised, 0);
        });
        QCOMPARE(m_raised, 1);
    }

    void aSilentBodyRaisesNothing()
    {
        m_events->hold([&] { m_events->raise(); });
        QCOMPARE(m_raised, 0);
        m_events->raise();
        QCOMPARE(m_raised, 1);
    }

    void aBodyThatThrowsSilencesNothing()
    {
        QVERIFY_THROWS_EXCEPTION(int, m_events->during([] { throw 1; }));
        QVERIFY(!m_events->areHeld());
        QCOMPARE(m_raised, 1); // what it had changed by then
        m_events->during([] {});
        QCOMPARE(m_raised, 2);
        QVERIFY_THROWS_EXCEPTION(int, m_events->hold([] { throw 1; }));
        QVERIFY(!m_events->areHeld());
    }

    void anInnerBodyThatThrowsEndsBoth()
    {
        QVERIFY_THROWS_EXCEPTION(int, m_events->during([&] { m_events->during([] { throw 1; }); }));
        QVERIFY(!m_events->areHeld());
        QCOMPARE(m_raised, 1);
    }

    void theBodysErrorIsNotLostToTheHandlers()
    {
        QStringList reported;
        setUnhandledErrorHandler(
            [&](QObject *, const RunTimeError &error) { reported << QString::number(error.number()); });
        m_deed = [] { throw RunTimeError(ErrorNumber::Overflow); };
        QVERIFY_THROWS_EXCEPTION(int, m_events->during([] { throw 1; }));
        QCOMPARE(reported, QStringList(QStringLiteral("6")));
    }

    void theHandlerMayEndTheOwner()
    {
        m_deed = [this] {
            m_owner.reset();
            m_events.reset();
        };
        m_events->during([] {});
        QCOMPARE(m_raised, 1);
    }

    void theBodyMayEndTheOwner()
    {
        m_events->during([this] {
            m_owner.reset();
            m_events.reset();
        });
        QCOMPARE(m_raised, 0);
    }

private:
    std::unique_ptr<QObject> m_owner;
    std::unique_ptr<HeldEvents> m_events;
    std::function<void()> m_deed;
    int m_raised = 0;
};

QTEST_MAIN(tst_HeldEvents)
#include "tst_heldevents.moc"
