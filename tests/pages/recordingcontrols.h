// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>
#include <utility>

namespace kor::test {

//! Notes down what a page reads of an object and what it writes, in order.
class Recorder : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    //! "Name" for each read, "Name=value" for each write since the last call.
    [[nodiscard]] QString take() { return std::exchange(m_lines, {}).join(QLatin1Char(' ')); }
    //! Called after each line, with it.
    std::function<void(const QString &)> then;

protected:
    QVariant read(const char *name) const
    {
        const_cast<Recorder *>(this)->note(QLatin1String(name)); // NOLINT: a getter that keeps a log
        return m_values.value(QLatin1String(name));
    }
    void write(const char *name, const QVariant &value)
    {
        m_values[QLatin1String(name)] = value;
        note(QStringLiteral("%1=%2").arg(QLatin1String(name), text(value)));
    }
    void note(const QString &line)
    {
        m_lines << line;
        if (const auto deed = then)
            deed(line);
    }
    //! With the type where it tells something.
    static QString text(const QVariant &value)
    {
        switch (variantType(value)) {
        case VariantType::Boolean: return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
        case VariantType::Integer: return value.toString() + QLatin1Char('%');
        case VariantType::String: return QLatin1Char('"') + value.toString() + QLatin1Char('"');
        default: return value.toString();
        }
    }

    QMap<QString, QVariant> m_values;

private:
    QStringList m_lines;
};

#define KOR_RECORDED(Name)                                                                                             \
  QVariant Name() const { return read(#Name); }                                                                        \
  void set##Name(const QVariant &value) { write(#Name, value); }

//! What the number page knows of a control, for whatever type the values have.
class RecordedNumber final : public Recorder
{
    Q_OBJECT
    Q_PROPERTY(QVariant CheckRange READ CheckRange WRITE setCheckRange)
    Q_PROPERTY(QVariant MaskPicture READ MaskPicture WRITE setMaskPicture)
    Q_PROPERTY(QVariant MinValue READ MinValue WRITE setMinValue)
    Q_PROPERTY(QVariant MaxValue READ MaxValue WRITE setMaxValue)
public:
    explicit RecordedNumber(QObject *parent = nullptr) : Recorder(parent)
    {
        m_values = {{QStringLiteral("CheckRange"), true},
                    {QStringLiteral("MaskPicture"), QStringLiteral("0.0")},
                    {QStringLiteral("MinValue"), -1.5F},
                    {QStringLiteral("MaxValue"), 20.0F}};
    }
    KOR_RECORDED(CheckRange)
    KOR_RECORDED(MaskPicture)
    KOR_RECORDED(MinValue)
    KOR_RECORDED(MaxValue)
};

//! What the combo page knows of a control.
class RecordedCombo final : public Recorder
{
    Q_OBJECT
    Q_PROPERTY(QVariant ToolTipText READ ToolTipText WRITE setToolTipText)
    Q_PROPERTY(QVariant CanBeNull READ CanBeNull WRITE setCanBeNull)
    Q_PROPERTY(QVariant NullString READ NullString WRITE setNullString)
    Q_PROPERTY(QVariant Slownik READ Slownik WRITE setSlownik)
    Q_PROPERTY(QVariant SQL READ SQL WRITE setSQL)
public:
    explicit RecordedCombo(QObject *parent = nullptr) : Recorder(parent)
    {
        m_values = {{QStringLiteral("ToolTipText"), QStringLiteral("tip")},
                    {QStringLiteral("CanBeNull"), true},
                    {QStringLiteral("NullString"), QStringLiteral("...")},
                    {QStringLiteral("Slownik"), QStringLiteral("miasta")},
                    {QStringLiteral("SQL"), QStringLiteral("LIST")}};
    }
    KOR_RECORDED(ToolTipText)
    KOR_RECORDED(CanBeNull)
    KOR_RECORDED(NullString)
    KOR_RECORDED(Slownik)
    KOR_RECORDED(SQL)
};

//! The wider grid that the grid pages are made for: bound to a database, with attributes for each column.
class RecordedGrid final : public Recorder
{
    Q_OBJECT
    Q_PROPERTY(QString DatabaseName READ DatabaseName WRITE setDatabaseName)
    Q_PROPERTY(QString RecordSource READ RecordSource WRITE setRecordSource)
    Q_PROPERTY(bool ReadOnly READ ReadOnly WRITE setReadOnly)
    Q_PROPERTY(QString Slownik READ Slownik WRITE setSlownik)
    Q_PROPERTY(int ColCount READ ColCount)
public:
    explicit RecordedGrid(QObject *parent = nullptr) : Recorder(parent)
    {
        m_values = {{QStringLiteral("DatabaseName"), QStringLiteral("C:\\dane.mdb")},
                    {QStringLiteral("RecordSource"), QStringLiteral("SELECT 1")},
                    {QStringLiteral("ReadOnly"), true},
                    {QStringLiteral("Slownik"), QStringLiteral("towary")}};
    }
    QString DatabaseName() const { return read("DatabaseName").toString(); }
    void setDatabaseName(const QString &name) { write("DatabaseName", name); }
    QString RecordSource() const { return read("RecordSource").toString(); }
    void setRecordSource(const QString &source) { write("RecordSource", source); }
    bool ReadOnly() const { return read("ReadOnly").toBool(); }
    void setReadOnly(bool readOnly) { write("ReadOnly", readOnly); }
    QString Slownik() const { return read("Slownik").toString(); }
    void setSlownik(const QString &name) { write("Slownik", name); }
    int ColCount() const { return columns; }

    Q_INVOKABLE void RetriveFields() { note(QStringLiteral("RetriveFields")); }
    Q_INVOKABLE QVariant ReadColProperty(int index, const QString &key)
    {
        note(QStringLiteral("%1.%2").arg(index).arg(key));
        const bool isText = key == QLatin1String("Title");
        return attributes.value(QStringLiteral("%1.%2").arg(index).arg(key),
                                isText ? QVariant(QStringLiteral("Kolumna %1").arg(index)) : QVariant());
    }
    Q_INVOKABLE void SaveColProperty(int index, const QString &key, const QVariant &value)
    {
        attributes[QStringLiteral("%1.%2").arg(index).arg(key)] = value;
        note(QStringLiteral("%1.%2=%3").arg(index).arg(key).arg(text(value)));
    }

    int columns = 4; //!< the fixed one and three
    QMap<QString, QVariant> attributes;
};

#undef KOR_RECORDED

} // namespace kor::test
