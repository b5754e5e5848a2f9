// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/generatedform.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/UiFile>
#include <KorDaoUC/UserControl>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtTest/QtTest>

#include <memory>

namespace FormFile = kor::FormFile;
namespace UiFile = kor::UiFile;
using namespace kor::test;
using kor::FormBlock;

namespace {

FormBlock parsed(const QByteArray &text)
{
    const kor::FormResult result = FormFile::parse(text);
    if (!result.form)
        qFatal("line %d: %s", result.error.line, qPrintable(result.error.reason));
    return *result.form;
}

//! The text of the .ui file that a form becomes.
QByteArray ui(const QByteArray &form, const UiFile::Options &options = {})
{
    const UiFile::Text result = UiFile::fromForm(parsed(form), options);
    return result.ui ? *result.ui : "(refused) " + result.error.reason.toUtf8();
}

//! The text of the form file that a .ui file becomes.
QByteArray form(const QByteArray &ui, const UiFile::Options &options = {})
{
    const UiFile::Form result = UiFile::toForm(ui, options);
    return result.form ? FormFile::serialize(*result.form) : "(refused) " + result.error.reason.toUtf8();
}

//! "3 kept: text", "4 lost: text", "5 refused: text"
QStringList told(const QList<UiFile::Remark> &remarks)
{
    const QStringList fates{QStringLiteral("kept"), QStringLiteral("lost"), QStringLiteral("refused")};
    QStringList all;
    for (const UiFile::Remark &remark : remarks)
        all << QStringLiteral("%1 %2: %3").arg(remark.line).arg(fates.at(static_cast<int>(remark.fate)), remark.text);
    return all;
}

//! A form with one control of the class, with these settings.
QByteArray formWith(const QByteArray &type, const QByteArray &settings)
{
    return FormFile::serialize(parsed("Begin Form f\nBegin " + type + " c\n" + settings + "End\nEnd\n"));
}

//! A .ui file with one widget of the class, with these parts.
QByteArray uiWith(const QByteArray &type, const QByteArray &parts, const QByteArray &sections = {})
{
    return "<ui version=\"4.0\"><class>f</class><widget class=\"QWidget\" name=\"f\"><property name=\"geometry\"><rect>"
           "<x>0</x><y>0</y><width>400</width><height>300</height></rect></property><widget class=\"" +
           type + "\" name=\"c\">" + parts + "</widget></widget>" + sections + "</ui>";
}

QByteArray fileIn(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

//! Forms as files of the form designer, and back.
class tst_UiFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyFormOfTheProjectComesBack_data();
    void everyFormOfTheProjectComesBack();
    void aGeneratedFormComesBack_data();
    void aGeneratedFormComesBack();
    void aSettingComesBack_data();
    void aSettingComesBack();
    void whatIsTheUsualIsToldByPropertiesAlone_data();
    void whatIsTheUsualIsToldByPropertiesAlone();
    void aPropertyThatTheDesignerChangedIsTheNewSetting_data();
    void aPropertyThatTheDesignerChangedIsTheNewSetting();
    void aResetPropertyIsNoLongerSaved();
    void aNewPropertyStandsInItsPlace();
    void aMovedControlGetsNewTwips();
    void theOrderOfTabIsTheListOfTabStops();
    void aTabStopIsOneOfTheWidgetsOfItsName();
    void aLabelBeforeTwoControlsOfOneNameNumbersNothing();
    void anotherListOfTabStopsNumbersAnew();
    void aBuddyIsTheNextControl();
    void otherScreensHaveOtherPixels();
    void whatOnlyTheDesignerKnowsIsKept_data();
    void whatOnlyTheDesignerKnowsIsKept();
    void aLayoutIsKeptAndItsPlacesAreTaken();
    void whatCannotBeKeptIsNamed_data();
    void whatCannotBeKeptIsNamed();
    void whatTheDesignerMakesNothingOfIsNamed_data();
    void whatTheDesignerMakesNothingOfIsNamed();
    void whatIsNoFormIsRefused_data();
    void whatIsNoFormIsRefused();
};

void tst_UiFile::everyFormOfTheProjectComesBack_data()
{
    QTest::addColumn<QString>("name");
    QDirIterator files(QStringLiteral(KOR_SOURCES), {QStringLiteral("*.frm"), QStringLiteral("*.korform")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next();
        if (!name.contains(QLatin1String("/build/")) && !name.contains(QLatin1String("/seeds/")))
            QTest::newRow(qPrintable(files.fileName())) << name;
    }
}

void tst_UiFile::everyFormOfTheProjectComesBack()
{
    QFETCH(const QString, name);
    // Comments are nobody's to keep, and tell themselves so.
    QByteArray text;
    for (const QByteArray &line : fileIn(name).split('\n')) {
        if (!line.startsWith('\''))
            text += line + '\n';
    }
    text.chop(1);
    QVERIFY(!text.isEmpty());
    QCOMPARE(FormFile::serialize(parsed(text)), text);
    QCOMPARE(form(ui(text)), text);
    QCOMPARE(ui(form(ui(text))), ui(text));
}

void tst_UiFile::aGeneratedFormComesBack_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 200; ++seed)
        QTest::addRow("form %d", seed) << seed;
}

void tst_UiFile::aGeneratedFormComesBack()
{
    QFETCH(const int, seed);
    const QByteArray text = FormFile::serialize(generatedForm(seed));
    QCOMPARE(FormFile::serialize(parsed(text)), text);
    const QByteArray there = ui(text);
    const QByteArray back = form(there);
    if (back != text) {
        const QByteArrayList left = text.split('\n');
        const QByteArrayList right = back.split('\n');
        for (qsizetype line = 0; line < left.size(); ++line)
            QCOMPARE(right.value(line), left.at(line));
    }
    QCOMPARE(back, text);
    QCOMPARE(ui(back), there);
}

void tst_UiFile::aSettingComesBack_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("settings");
    const QByteArray number = "KorDaoUC.KorNumber";
    const QByteArray place = "Left = 15\nTop = 15\nWidth = 1500\nHeight = 300\n";
    // clang-format off
    QTest::newRow("nothing")                           << number << QByteArray();
    QTest::newRow("twips between pixels")              << number << QByteArray("Left = 101\nTop = 203!\nWidth = 7#\nHeight = -3%\n");
    QTest::newRow("a place that no screen has")        << number << QByteArray("Left = 99999999\nTop = \"x\"\nWidth = Null\n");
    QTest::newRow("a default all the same")            << number << place + "MaskPicture = \"#,##0.00\"\n";
    QTest::newRow("another type")                      << number << place + "Alignment = 2\nMaxLength = 5%\nMaxValue = 5#\n";
    QTest::newRow("another order")                     << number << "MaxLength = 3\nLeft = 15\nMaskPicture = \"0\"\nTop = 30\n" + QByteArray("BackColor = 5\n");
    QTest::newRow("a key twice")                       << number << place + "MaxLength = 3\nMaxLength = 3\n";
    QTest::newRow("a key twice with two values")       << number << place + "MaxLength = 3\nMaxLength = 4\n";
    QTest::newRow("a key three times")                 << number << place + "Text = \"1\"\nText = \"2\"\nText = \"1\"\n";
    QTest::newRow("a key that nobody knows")           << number << place + "Tag = \"x\"\nMaskPicture = \"0\"\n";
    QTest::newRow("keys with odd names")               << number << place + "\"a b\" = 1\n\"Begin\" = 2\n\"End\" = 3\n\"absent\" = 4\nabsent = 5\n";
    QTest::newRow("a value of every type")             << number << place + "Value = 5@\nA = Empty\nB = Null\nC = Missing\nD = 7b\nE = 9007199254740993^\nF = 0.1!\nG = 1e+300#\nH = #2026-11-21 12:30:00.250#\n";
    QTest::newRow("a Null of its own")                 << number << place + "Value = Null\n";
    QTest::newRow("a number too large for its type")   << number << place + "MaxValue = 1e+300#\n";
    QTest::newRow("a member that there is not")        << number << place + "Alignment = 7%\n";
    QTest::newRow("a system colour")                   << number << place + "BackColor = &H8000000F&\n";
    QTest::newRow("the lowest colour")                 << number << place + "BackColor = &H80000000&\n";
    QTest::newRow("a font")                            << number << place + "Font = Font(\"DejaVu Sans\", 9, Bold, Strikeout)\n";
    QTest::newRow("a font between sizes")              << number << place + "Font = Font(\"DejaVu Sans\", 8.25)\n";
    QTest::newRow("a font with more to it")            << number << place + "Font = Font(\"DejaVu Sans,9,-1,5,500,0,0,0,0,0,1,0,0,0,0,1\")\n";
    QTest::newRow("a text of blanks")                  << QByteArray("KorDaoUC.KorListCheck") << place + "Separator = \"  \"\n";
    QTest::newRow("a text with control characters")    << number << place + "ToolTipText = \"a\\u0001b\\u2028c\"\n";
    QTest::newRow("a text with all kinds of breaks")   << number << place + "ToolTipText = \"a\\rb\\nc\\r\\nx\\t \"\n";
    QTest::newRow("half a character")                  << number << place + "ToolTipText = \"a\\uD800\"\n";
    QTest::newRow("a time")                            << number << place + "Value = #2026-11-21 12:30:00#\n";
    QTest::newRow("the first day")                     << number << place + "Value = #0001-01-01#\n";
    QTest::newRow("a text that is no text")            << QByteArray("KorDaoUC.KorDate") << place + "Text = 5\n";
    QTest::newRow("a class that nobody knows")         << QByteArray("TextBox") << place + "Text = \"x\"\n";
    QTest::newRow("a class with an odd name")          << QByteArray("\"a <b>\"") << place;
    QTest::newRow("a form in a form")                  << QByteArray("Form") << place + "Caption = \"x\"\n";
    QTest::newRow("a number of Tab that is none")      << number << place + "TabIndex = \"x\"\n";
    QTest::newRow("a class of the designer")           << QByteArray("ui.QLineEdit") << place + "ui.property.text = \"<string>a</string>\"\nui.dynamic.x = \"<bool>true</bool>\"\n";
    QTest::newRow("what is kept, but is no XML")       << number << place + "ui.property.x = \"<string>\"\nui.more = 5\nui.section.y = \"<y/>\"\n";
    // clang-format on
}

void tst_UiFile::aSettingComesBack()
{
    QFETCH(const QByteArray, type);
    QFETCH(const QByteArray, settings);
    const QByteArray text = formWith(type, settings);
    QCOMPARE(form(ui(text)), text);
}

void tst_UiFile::whatIsTheUsualIsToldByPropertiesAlone_data()
{
    QTest::addColumn<QString>("type");
    for (const QString &name : kor::ControlRegistry::names())
        QTest::newRow(qPrintable(name)) << name;
}

//! A control that is saved as it saves itself needs no lines of ours beside its properties, but for what no property
//! holds.
void tst_UiFile::whatIsTheUsualIsToldByPropertiesAlone()
{
    QFETCH(const QString, type);
    const std::unique_ptr<kor::UserControl> control(kor::ControlRegistry::create(type));
    kor::PropertyBag settings;
    control->setBackColor(0x123456);
    control->setEnabled(false);
    control->setFont(QFont(QStringLiteral("DejaVu Sans"), 17));
    control->setProperty("ToolTipText", QStringLiteral("łódź & \"<x>\"\nend "));
    control->setProperty("Value", 7);
    control->writeProperties(settings);
    FormBlock block{QStringLiteral("KorDaoUC.") + type, QStringLiteral("c"), {}, {}};
    for (const char *side : {"Left", "Top", "Width", "Height"})
        block.properties.append(QLatin1String(side), 150);
    for (const auto &[key, value] : settings.entries())
        block.properties.append(key, value);
    const FormBlock whole{QStringLiteral("Form"), QStringLiteral("f"), {}, {block}};
    const QByteArray text = *UiFile::fromForm(whole).ui;
    QVERIFY2(!text.contains("korSettings") || !text.contains("<string>Left"), text.constData());
    QVERIFY(text.contains("<property name=\"BackColor\"><number>1193046</number>") ||
            text.contains("<number>1193046</number>"));
    QCOMPARE(form(text), FormFile::serialize(whole));
}

void tst_UiFile::aPropertyThatTheDesignerChangedIsTheNewSetting_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("was");
    QTest::addColumn<QByteArray>("is");
    QTest::addColumn<QByteArray>("after");
    // clang-format off
    QTest::newRow("a text")                << QByteArray("MaskPicture = \"0.0\"\n") << QByteArray(">0.0<") << QByteArray(">0.000<") << QByteArray("MaskPicture = \"0.000\"\n");
    QTest::newRow("a text beside a line")  << QByteArray("Tag = 1\nMaskPicture = \"0.0\"\n") << QByteArray(">0.0<") << QByteArray(">0.000<") << QByteArray("Tag = 1\nMaskPicture = \"0.000\"\n");
    QTest::newRow("a number of a type")    << QByteArray("MaxLength = 5%\n") << QByteArray(">5<") << QByteArray(">6<") << QByteArray("MaxLength = 6\n");
    QTest::newRow("an enumeration")        << QByteArray("Alignment = 2%\n") << QByteArray("Center<") << QByteArray("Left_Justify<") << QByteArray("Alignment = 0%\n");
    QTest::newRow("a key twice")           << QByteArray("MaxLength = 5\nMaxLength = 5\n") << QByteArray(">5<") << QByteArray(">6<") << QByteArray("MaxLength = 6\nMaxLength = 6\n");
    QTest::newRow("a colour, no sign")     << QByteArray("BackColor = 5\n") << QByteArray(">5<") << QByteArray(">2147483663<") << QByteArray("BackColor = &H8000000F&\n");
    QTest::newRow("a font between sizes")  << QByteArray("Font = Font(\"DejaVu Sans\", 8.25)\n") << QByteArray(">8<") << QByteArray(">9<") << QByteArray("Font = Font(\"DejaVu Sans\", 9)\n");
    QTest::newRow("a value")               << QByteArray("Value = 5@\n") << QByteArray("<double>5<") << QByteArray("<double>6<") << QByteArray("Value = 6#\n");
    QTest::newRow("fifteen decimals")      << QByteArray("Value = 0.1#\n") << QByteArray(">0.1<") << QByteArray(">0.100000000000000<") << QByteArray("Value = 0.1#\n");
    QTest::newRow("line feeds only")       << QByteArray("ToolTipText = \"a\\r\\nb\"\n") << QByteArray("a&#13;\nb") << QByteArray("a\nb") << QByteArray("ToolTipText = \"a\\r\\nb\"\n");
    QTest::newRow("the name")              << QByteArray("Tag = 1\n") << QByteArray("name=\"c\"") << QByteArray("name=\"d\"") << QByteArray("Tag = 1\n");
    // clang-format on
}

void tst_UiFile::aPropertyThatTheDesignerChangedIsTheNewSetting()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, was);
    QFETCH(const QByteArray, is);
    QFETCH(const QByteArray, after);
    const QByteArray place = "Left = 15\nTop = 15\nWidth = 1500\nHeight = 300\n";
    QByteArray text = ui(formWith("KorDaoUC.KorNumber", place + before));
    QVERIFY2(text.contains(was), text.constData());
    QByteArray expected = formWith("KorDaoUC.KorNumber", place + after);
    if (QByteArrayView(QTest::currentDataTag()) == "the name")
        expected.replace("KorNumber c", "KorNumber d");
    QCOMPARE(form(text.replace(was, is)), expected);
}

void tst_UiFile::aResetPropertyIsNoLongerSaved()
{
    QByteArray text =
        ui(formWith("KorDaoUC.KorNumber", "Tag = 1\nMaxLength = 5\nMaskPicture = \"0\"\nMaxLength = 5\n"));
    const qsizetype start = text.indexOf("<property name=\"MaxLength\">");
    const qsizetype end = text.indexOf("</property>", start);
    text.remove(start, end - start + 11);
    QVERIFY(start > 0);
    QCOMPARE(form(text), formWith("KorDaoUC.KorNumber", "Tag = 1\nMaskPicture = \"0\"\n"));
}

void tst_UiFile::aNewPropertyStandsInItsPlace()
{
    QByteArray text = ui(formWith("KorDaoUC.KorNumber", "ToolTipText = \"x\"\nLocked = True\nTag = 1\n"));
    text.replace("<property name=\"Locked\">",
                 "<property name=\"MaxLength\"><number>4</number></property><property name=\"Locked\">");
    QCOMPARE(form(text), formWith("KorDaoUC.KorNumber",
                                  "MaxLength = 4\nMaxLength = 4\nToolTipText = \"x\"\nLocked = True\nTag = 1\n"));
}

void tst_UiFile::aMovedControlGetsNewTwips()
{
    const QByteArray before = formWith("KorDaoUC.KorCombo", "Left = 101\nTop = 203\nWidth = 2011\n");
    QByteArray text = ui(before);
    QVERIFY(text.contains("<x>7</x>") && text.contains("<y>14</y>") && text.contains("<width>134</width>"));
    text.replace("<x>7</x>", "<x>8</x>");
    QCOMPARE(form(text), formWith("KorDaoUC.KorCombo", "Left = 120\nTop = 203\nWidth = 2011\n"));
    const qsizetype height = text.lastIndexOf("<height>");
    text.replace(height, text.indexOf("</height>", height) - height, "<height>99");
    QCOMPARE(form(text), formWith("KorDaoUC.KorCombo", "Left = 120\nTop = 203\nWidth = 2011\nHeight = 1485\n"));
}

void tst_UiFile::theOrderOfTabIsTheListOfTabStops()
{
    const QByteArray text = FormFile::serialize(
        parsed("Begin Form f\nBegin Label one\nCaption = \"&1\"\nTabIndex = 3\nEnd\n"
               "Begin KorDaoUC.KorNumber a\nTabIndex = 4\nEnd\nBegin Frame g\nBegin KorDaoUC.KorDate b\nTabIndex = 2\n"
               "End\nEnd\nBegin Label two\nCaption = \"&2\"\nTabIndex = 1\nEnd\nEnd\n"));
    const QByteArray there = ui(text);
    const qsizetype first = there.indexOf("<tabstop>b</tabstop>");
    QVERIFY(first > 0 && first < there.indexOf("<tabstop>a</tabstop>"));
    QCOMPARE(there.count("<tabstop>"), 2);
    QVERIFY(there.contains("<cstring>a</cstring>") && there.contains("<cstring>b</cstring>"));
    QVERIFY(!there.contains("TabIndex"));
    QCOMPARE(form(there), text);

    // Numbers with gaps stand beside it.
    QByteArray gaps = text;
    gaps.replace("TabIndex = 4", "TabIndex = 40");
    QVERIFY(ui(gaps).contains("<string>TabIndex = 40</string>"));
    QCOMPARE(form(ui(gaps)), gaps);
}

void tst_UiFile::aTabStopIsOneOfTheWidgetsOfItsName()
{
    // Nobody knows the kind of the first of the two, which has no number. Nor has the first control, so that the list
    // names all that take the focus.
    const QByteArray text = FormFile::serialize(
        parsed("Begin Form f\nBegin KorDaoUC.KorColor a\nEnd\nBegin KorDaoUC.KorClick b\nTabIndex = 1321\nEnd\n"
               "Begin TextBox twice\nEnd\nBegin CommandButton twice\nTabIndex = 127\nEnd\nEnd\n"));
    QCOMPARE(form(ui(text)), text);
}

void tst_UiFile::aLabelBeforeTwoControlsOfOneNameNumbersNothing()
{
    const QByteArray text = FormFile::serialize(
        parsed("Begin Form f\nBegin Label l\nCaption = \"&a\"\nEnd\nBegin KorDaoUC.KorNumber twice\nEnd\n"
               "Begin KorDaoUC.KorNumber twice\nEnd\nEnd\n"));
    const QByteArray there = ui(text);
    QVERIFY(!there.contains("buddy"));
    QCOMPARE(form(there), text);
}

void tst_UiFile::anotherListOfTabStopsNumbersAnew()
{
    const QByteArray text = FormFile::serialize(parsed("Begin Form f\nBegin KorDaoUC.KorNumber a\nTabIndex = 10\nEnd\n"
                                                       "Begin KorDaoUC.KorNumber b\nTabIndex = 20\nEnd\nEnd\n"));
    QByteArray there = ui(text);
    there.replace("<tabstop>a</tabstop>", "<tabstop>x</tabstop>");
    there.replace("<tabstop>b</tabstop>", "<tabstop>b</tabstop><tabstop>a</tabstop>");
    QByteArray expected = text;
    expected.replace("= 10", "= 2").replace("= 20", "= 1");
    QCOMPARE(form(there), expected);
}

void tst_UiFile::aBuddyIsTheNextControl()
{
    const QByteArray field = "<widget class=\"KorNumber\" name=\"n\"/>";
    const auto label = [](const QByteArray &buddy, const QByteArray &caption = "&amp;Cena") {
        return "<widget class=\"QLabel\" name=\"l\"><property name=\"text\"><string>" + caption +
               "</string></property><property name=\"buddy\"><cstring>" + buddy + "</cstring></property></widget>";
    };
    const auto whole = [](const QByteArray &parts) {
        return "<ui version=\"4.0\"><class>f</class><widget class=\"QWidget\" name=\"f\">" + parts + "</widget></ui>";
    };
    // The label stands before the control: nothing needs to be said.
    QVERIFY(!form(whole(label("n") + field)).contains("TabIndex"));
    // Behind it: numbers say it.
    const QByteArray behind = form(whole(field + label("n")));
    QVERIFY2(behind.indexOf("TabIndex = 2") > 0 && behind.indexOf("TabIndex = 2") < behind.indexOf("TabIndex = 1"),
             behind.constData());
    QVERIFY(ui(behind).contains("<cstring>n</cstring>"));
    // Without a letter: kept.
    const QByteArray mute = form(whole(label("n", "Cena") + field));
    QVERIFY(mute.contains("ui.property.buddy = \"<cstring>n</cstring>\""));
    QVERIFY(ui(mute).contains("<property name=\"buddy\">"));
    QCOMPARE(form(ui(mute)), mute);
    // One that is not there: kept, and nothing is numbered for it.
    const QByteArray lost = form(whole(label("gone") + field));
    QVERIFY(lost.contains("ui.property.buddy") && !lost.contains("TabIndex"));
    QCOMPARE(form(ui(lost)), lost);
    // A letter that leads nowhere goes on leading nowhere.
    QByteArray alone = whole(label("n") + field);
    alone.replace("<property name=\"buddy\"><cstring>n</cstring></property>", "");
    QVERIFY(!ui(form(alone)).contains("buddy"));
    QCOMPARE(told(UiFile::toForm(alone).remarks), QStringList());
}

void tst_UiFile::otherScreensHaveOtherPixels()
{
    const QByteArray text = formWith("KorDaoUC.KorNumber", "Left = 1440\nTop = 720\nWidth = 1443\nHeight = 300\n");
    UiFile::Options options;
    options.dotsPerInch = 120;
    const QByteArray there = ui(text, options);
    QVERIFY(there.contains("<x>120</x>") && there.contains("<y>60</y>"));
    QCOMPARE(form(there), text); // the file knows
}

void tst_UiFile::whatOnlyTheDesignerKnowsIsKept_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("line"); // of the form file
    const QByteArray number = "KorNumber";
    // clang-format off
    QTest::newRow("a property")          << uiWith(number, "<property name=\"styleSheet\"><string>a &amp; \"b\"</string></property>") << QByteArray("ui.property.styleSheet = \"<string>a &amp; &quot;b&quot;</string>\"");
    QTest::newRow("a dynamic property")  << uiWith(number, "<property name=\"x\" stdset=\"0\"><bool>true</bool></property>") << QByteArray("ui.dynamic.x = \"<bool>true</bool>\"");
    QTest::newRow("an attribute")        << uiWith("QWidget", "<attribute name=\"title\"><string>Strona</string></attribute>") << QByteArray("ui.attribute.title = \"<string>Strona</string>\"");
    QTest::newRow("a stock widget")      << uiWith("QLineEdit", "<property name=\"text\"><string>x</string></property>") << QByteArray("Begin ui.QLineEdit c");
    QTest::newRow("items")               << uiWith("QComboBox", "<item><property name=\"text\"><string>a</string></property></item><item/>") << QByteArray("ui.more = \"<item><property name=\"\"text\"\"><string>a</string></property></item><item/>\"");
    QTest::newRow("connections")         << uiWith(number, {}, "<connections><connection><sender>c</sender></connection></connections>") << QByteArray("ui.section.connections = \"<connections><connection><sender>c</sender></connection></connections>\"");
    QTest::newRow("other classes")       << uiWith("Clock", {}, "<customwidgets><customwidget><class>Clock</class><extends>QWidget</extends></customwidget></customwidgets>") << QByteArray("ui.section.customwidgets = \"<customwidgets><customwidget><class>Clock</class><extends>QWidget</extends></customwidget></customwidgets>\"");
    QTest::newRow("a section to come")   << uiWith(number, {}, "<future><x/></future>") << QByteArray("ui.section.future = \"<future><x/></future>\"");
    QTest::newRow("what is never read") << uiWith("KorColor", "<property name=\"Value\"><number>255</number></property>") << QByteArray("ui.property.Value = \"<number>255</number>\"");
    QTest::newRow("a tool tip of ours")  << uiWith(number, "<property name=\"toolTip\"><string>x</string></property>") << QByteArray("ui.property.toolTip = \"<string>x</string>\"");
    QTest::newRow("a layout")            << uiWith("QGroupBox", "<layout class=\"QHBoxLayout\" name=\"l\"><item><spacer name=\"s\"/></item><item><widget class=\"KorNumber\" name=\"n\"/></item></layout>") << QByteArray("ui.layout = \"<layout class=\"\"QHBoxLayout\"\" name=\"\"l\"\"><item><spacer name=\"\"s\"\"/></item><item><widget name=\"\"n\"\"/></item></layout>\"");
    QByteArray dialog = uiWith(number, {});
    dialog.replace("QWidget", "QDialog");
    QTest::newRow("another window")      << dialog << QByteArray("ui.class = \"QDialog\"");
    QByteArray other = uiWith(number, {});
    other.replace("<class>f<", "<class>Order<");
    QTest::newRow("another class name")  << other << QByteArray("ui.section.class = \"<class>Order</class>\"");
    QByteArray language = uiWith(number, {});
    language.replace("4.0\"", "4.0\" language=\"c++\"");
    QByteArray version = uiWith(number, {});
    version.replace("4.0\"", "4.1\"");
    QTest::newRow("another version")     << version << QByteArray("ui.section.ui = \"<ui version=\"\"4.1\"\"/>\"");
    QByteArray emptyVersion = uiWith(number, {});
    emptyVersion.replace("4.0\"", "\"");
    QTest::newRow("an empty version")    << emptyVersion << QByteArray("ui.section.ui = \"<ui version=\"\"\"\"/>\"");
    QTest::newRow("the language")        << language << QByteArray("ui.section.ui = \"<ui language=\"\"c++\"\"/>\"");
    // clang-format on
}

void tst_UiFile::whatOnlyTheDesignerKnowsIsKept()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, line);
    const QByteArray there = form(text);
    QVERIFY2(there.contains(line + '\n'), there.constData());
    const QByteArray back = ui(there);
    QCOMPARE(form(back), there);
    for (const char *word : {"styleSheet", "stdset=\"0\"", "Strona", "QLineEdit", "<item", "<sender>", "Clock",
                             "<future>", "toolTip", "<spacer", "QDialog", "Order", "language"}) {
        if (text.contains(word))
            QVERIFY2(back.contains(word), back.constData());
    }
}

void tst_UiFile::aLayoutIsKeptAndItsPlacesAreTaken()
{
    const QByteArray text =
        uiWith("QGroupBox", "<layout class=\"QHBoxLayout\" name=\"l\"><item><widget class=\"KorNumber\" "
                            "name=\"n\"/></item><item><widget class=\"KorList\" name=\"m\"/></item></layout>");
    UiFile::Options options;
    options.placeInLayout = [](const QString &name) {
        return name == u"n" ? std::optional(QRect(10, 20, 30, 40)) : std::nullopt;
    };
    QByteArray there = form(text, options);
    QVERIFY2(there.contains("Begin KorDaoUC.KorNumber n\n         Left = 150\n         Top = 300\n"),
             there.constData());
    const QByteArray back = ui(there);
    QVERIFY(back.indexOf("<layout") < back.indexOf("name=\"n\"") &&
            back.indexOf("</layout>") > back.indexOf("name=\"m\""));
    QCOMPARE(form(back), there);
    // When a control is gone, or stands elsewhere, each is placed by itself; the form is the same all the same.
    for (const char *change : {"gone", "moved"}) {
        QByteArray changed = there;
        const QByteArray last = "      Begin KorDaoUC.KorList m\n      End\n";
        QVERIFY(changed.contains(last));
        changed.replace(last, "");
        if (QByteArrayView(change) == "moved")
            changed.replace("      Begin KorDaoUC.KorNumber n", last + "      Begin KorDaoUC.KorNumber n");
        QVERIFY(!ui(changed).contains("<layout "));
        QCOMPARE(form(ui(changed)), changed);
        QVERIFY(told(UiFile::fromForm(parsed(changed)).remarks)
                    .join(u'\n')
                    .contains(QLatin1String("the layout holds other")));
    }
}

void tst_UiFile::whatCannotBeKeptIsNamed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("remark");
    // clang-format off
    QTest::newRow("a comment")               << uiWith("KorNumber", "\n<!-- x -->") << QStringLiteral("2 lost: the comment is not kept");
    QTest::newRow("a word to translators")   << uiWith("QLabel", "\n\n<property name=\"text\"><string comment=\"x\">a</string></property>") << QStringLiteral("3 lost: QLabel c, text: what is said to translators is not kept");
    QTest::newRow("a value of another kind") << uiWith("KorNumber", "<property name=\"MaxLength\"><string>5</string></property>") << QStringLiteral("1 refused: KorNumber c, MaxLength: <string> holds no whole number");
    QTest::newRow("no member")               << uiWith("KorNumber", "<property name=\"Alignment\"><enum>kor::Middle</enum></property>") << QStringLiteral("1 refused: KorNumber c, Alignment: <enum> holds no member of the enumeration");
    QTest::newRow("half a font")             << uiWith("KorNumber", "<property name=\"Font\"><font><bold>true</bold></font></property>") << QStringLiteral("1 refused: KorNumber c, Font: a form file holds fonts with their family and size only");
    QTest::newRow("today")                   << uiWith("KorDate", {}) << QStringLiteral("1 lost: KorDate c, Text: what a new control shows can't be said in a form file, where it is empty");
    QTest::newRow("a spoilt line")           << uiWith("KorNumber", "\n<property name=\"korSettings\" stdset=\"0\"><stringlist><string>Tag = = 1</string></stringlist></property>") << QStringLiteral("2 refused: KorNumber c, korSettings: the value is missing");
    // clang-format on
}

void tst_UiFile::whatCannotBeKeptIsNamed()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, remark);
    const QStringList all = told(UiFile::toForm(text).remarks);
    QVERIFY2(all.contains(remark), qPrintable(all.join(u'\n')));
}

void tst_UiFile::whatTheDesignerMakesNothingOfIsNamed_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("remark");
    // clang-format off
    QTest::newRow("a key that nobody knows") << QByteArray("Tag = 1\n")                              << QStringLiteral("3 kept: KorDaoUC.KorNumber c, Tag: there is no such property; a .ui file makes nothing of it");
    QTest::newRow("a key with two values")   << QByteArray("MaxLength = 1\nMaxLength = 2\n")         << QStringLiteral("3 kept: KorDaoUC.KorNumber c, MaxLength: the key stands once more, and a .ui file tells the last value only");
    QTest::newRow("control characters")      << QByteArray("\nText = \"a\\u0001\"\n")                << QStringLiteral("4 kept: KorDaoUC.KorNumber c, Text: a .ui file can't tell the value to the control");
    QTest::newRow("a font between sizes")    << QByteArray("Font = Font(\"DejaVu Sans\", 8.25)\n")   << QStringLiteral("3 kept: KorDaoUC.KorNumber c, Font: a .ui file tells whole points and the four styles of a font only");
    // clang-format on
}

void tst_UiFile::whatTheDesignerMakesNothingOfIsNamed()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const QString, remark);
    const QByteArray text = "Begin Form f\nBegin KorDaoUC.KorNumber c\n" + settings + "End\nEnd\n";
    QCOMPARE(told(UiFile::fromForm(parsed(text)).remarks), QStringList(remark));
}

void tst_UiFile::whatIsNoFormIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("line");
    // clang-format off
    QTest::newRow("nothing")             << QByteArray()                                        << 1;
    QTest::newRow("no XML")              << QByteArray("Begin Form f\nEnd\n")                   << 1;
    QTest::newRow("cut off")             << QByteArray("<ui>\n<widget>\n<x")                    << 3;
    QTest::newRow("another file")        << QByteArray("<html>\n<widget/></html>")              << 1;
    QTest::newRow("no window")           << QByteArray("\n<ui><class>f</class></ui>")           << 2;
    QTest::newRow("an unknown entity")   << QByteArray("<ui>\n<class>&x;</class></ui>")         << 2;
    QTest::newRow("a text among others") << QByteArray("<ui>\n<widget>x<y/></widget></ui>")     << 2;
    QTest::newRow("bad characters")      << QByteArray("<ui><class>\xff</class></ui>")          << 1;
    QTest::newRow("a spoilt name")       << QByteArray("<ui><a\\b/></ui>")                      << 1;
    QTest::newRow("too deep")            << QByteArray("<a>").repeated(600)                     << 1;
    // clang-format on
}

void tst_UiFile::whatIsNoFormIsRefused()
{
    QFETCH(const QByteArray, text);
    QFETCH(const int, line);
    const UiFile::Form result = UiFile::toForm(text);
    QVERIFY(!result.form);
    QVERIFY(!result.error.reason.isEmpty());
    QCOMPARE(result.error.line, line);
}

QTEST_MAIN(tst_UiFile)
#include "tst_uifile.moc"
