// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/UserControl>

#include <QtTest/QtTest>
#include <QtWidgets/QLineEdit>

#include <functional>
#include <memory>

namespace {

//! A control that hears of the end of its box.
class Hearing final : public kor::UserControl
{
public:
    explicit Hearing(std::function<void()> heard) : UserControl(nullptr), m_box(new QLineEdit(this))
    {
        setMainConstituent(m_box);
        connect(m_box, &QObject::destroyed, this, std::move(heard));
    }
    void initProperties() override {}
    void readProperties(const kor::PropertyBag &) override {}
    void writeProperties(kor::PropertyBag &) const override {}

    [[nodiscard]] QLineEdit *box() const { return m_box; }

private:
    QLineEdit *m_box;
};

} // namespace

//! What every control is built on.
class tst_UserControl : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aControlHearsOfItsConstituentsWhileItLives();
    void anEndingControlHearsOfNothingMore();
};

void tst_UserControl::aControlHearsOfItsConstituentsWhileItLives()
{
    int heard = 0;
    const Hearing control([&] { ++heard; });
    delete control.box();
    QCOMPARE(heard, 1);
}

//! What would hear is gone by then.
void tst_UserControl::anEndingControlHearsOfNothingMore()
{
    int heard = 0;
    {
        const Hearing control([&] { ++heard; });
    }
    QCOMPARE(heard, 0);
}

QTEST_MAIN(tst_UserControl)
#include "tst_usercontrol.moc"
