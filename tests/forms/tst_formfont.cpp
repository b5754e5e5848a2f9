// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/FormFile>

#include <QtGui/QFont>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace {

QFont font(const QString &family, int size) { return QFont(QStringList{family}, size); }

} // namespace

//! Fonts in form files, in a program that has fonts.
class tst_FormFont : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsBackAsTheSameFont_data()
    {
        QTest::addColumn<QFont>("font");
        QTest::addColumn<QByteArray>("line"); // empty: any

        const QFont plain = font(QStringLiteral("DejaVu Sans"), 10);
        QFont styled = plain;
        styled.setBold(true);
        styled.setItalic(true);
        styled.setUnderline(true);
        styled.setStrikeOut(true);
        QFont fraction = plain;
        fraction.setPointSizeF(8.25);
        QFont pixels = plain;
        pixels.setPixelSize(13);
        QFont semibold = plain;
        semibold.setWeight(QFont::DemiBold);
        QFont spaced = plain;
        spaced.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
        spaced.setCapitalization(QFont::SmallCaps);
        spaced.setStretch(QFont::Condensed);

        // clang-format off
        QTest::newRow("a plain font")         << plain    << QByteArray("Font(\"DejaVu Sans\", 10)");
        QTest::newRow("every style")          << styled   << QByteArray("Font(\"DejaVu Sans\", 10, Bold, Italic, Underline, Strikeout)");
        QTest::newRow("a fraction of a point")<< fraction << QByteArray("Font(\"DejaVu Sans\", 8.25)");
        QTest::newRow("a Polish family name") << font(QStringLiteral("Żółw"), 9) << QByteArray("Font(\"Żółw\", 9)");
        QTest::newRow("a size in pixels")     << pixels   << QByteArray();
        QTest::newRow("a weight between")     << semibold << QByteArray();
        QTest::newRow("spacing and capitals") << spaced   << QByteArray();
        QTest::newRow("the program's font")   << QApplication::font() << QByteArray();
        // clang-format on
    }
    void readsBackAsTheSameFont()
    {
        QFETCH(const QFont, font);
        QFETCH(const QByteArray, line);
        kor::FormBlock form{QStringLiteral("Form"), {}, {}, {}};
        form.properties.append(QStringLiteral("Font"), font);
        const QByteArray text = kor::FormFile::serialize(form);
        if (!line.isEmpty())
            QCOMPARE(text, "Begin Form\n   Font = " + line + "\nEnd\n");
        const kor::FormResult result = kor::FormFile::parse(text);
        QVERIFY2(result.form, qPrintable(result.error.reason));
        QCOMPARE(result.form->properties.valueAt(0).typeId(), int(QMetaType::QFont));
        QCOMPARE(result.form->properties.valueAt(0).value<QFont>(), font);
        QVERIFY(*result.form == form);
    }
};

QTEST_MAIN(tst_FormFont)
#include "tst_formfont.moc"
