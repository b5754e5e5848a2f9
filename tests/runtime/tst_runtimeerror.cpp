// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/RunTimeError>

#include <QtTest/QTest>

#include <string_view>

class tst_RunTimeError : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatBeginsWithTheNumber()
    {
        try {
            throw kor::RunTimeError(kor::ErrorNumber::TypeMismatch);
        } catch (const std::exception &error) {
            QCOMPARE(QString::fromUtf8(error.what()), QStringLiteral("13: Type mismatch"));
        }
    }

    void carriesTheGivenDescription()
    {
        const kor::RunTimeError error(kor::ErrorNumber::DatabaseFailed, QStringLiteral("no such table: Towary"));
        QCOMPARE(error.number(), 3146);
        QCOMPARE(error.description(), QStringLiteral("no such table: Towary"));
    }
};

QTEST_GUILESS_MAIN(tst_RunTimeError)
#include "tst_runtimeerror.moc"
