#include "zelQtUnseenChange_p.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

// Changes of widgets that nobody sees, in a scrolled mask.

namespace {

/// Notes what it painted.
class Field : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;
    QStringList mPainted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QLineEdit::paintEvent(event);
        mPainted << text();
    }
};

class Scrolled : public QScrollArea
{
public:
    Scrolled()
    {
        auto *content = new QWidget;
        auto *column = new QVBoxLayout(content);
        for (int i = 0; i < 60; ++i) {
            auto *group = new QWidget;
            auto *row = new QHBoxLayout(group);
            mFields << new Field(QStringLiteral("0"));
            row->addWidget(mFields.last());
            column->addWidget(group);
        }
        setWidgetResizable(true);
        setWidget(content);
        resize(200, 300);
    }
    [[nodiscard]] bool open()
    {
        show();
        return QTest::qWaitForWindowExposed(this);
    }
    void change(Field *field)
    {
        changeMaybeUnseen(field, [field] { field->setText(QStringLiteral("1")); });
        settle();
    }
    void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    QVector<Field *> mFields;
};

} // namespace

class tst_zelQtUnseenChange : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void seenFieldIsPaintedAtOnce();
    void unseenFieldIsPaintedWhenItComesIntoSight();
    void halfSeenFieldIsPainted();
    void fieldInAClosedWindowIsPaintedWithIt();
    void heldUpdatesStayHeld();
    void listenersMayDeleteTheField();

private:
    std::unique_ptr<Scrolled> mArea;
};

void tst_zelQtUnseenChange::init()
{
    mArea = std::make_unique<Scrolled>();
}

void tst_zelQtUnseenChange::seenFieldIsPaintedAtOnce()
{
    QVERIFY(mArea->open());
    Field *field = mArea->mFields.first();
    QVERIFY(!isScrolledOut(field));
    field->mPainted.clear();
    mArea->change(field);
    QVERIFY(field->mPainted.contains(QStringLiteral("1")));
    QVERIFY(field->updatesEnabled());
}

void tst_zelQtUnseenChange::unseenFieldIsPaintedWhenItComesIntoSight()
{
    QVERIFY(mArea->open());
    Field *field = mArea->mFields.last();
    QVERIFY(isScrolledOut(field));
    mArea->change(field);
    QCOMPARE(field->mPainted, QStringList());
    QVERIFY(field->updatesEnabled());
    mArea->ensureWidgetVisible(field);
    mArea->settle();
    QVERIFY(!isScrolledOut(field));
    QVERIFY(field->mPainted.contains(QStringLiteral("1")));
}

void tst_zelQtUnseenChange::halfSeenFieldIsPainted()
{
    QVERIFY(mArea->open());
    Field *field = mArea->mFields.at(30);
    const int top = field->mapTo(mArea->widget(), QPoint(0, 0)).y();
    mArea->verticalScrollBar()->setValue(top - mArea->viewport()->height() + 3);
    mArea->settle();
    QVERIFY(!isScrolledOut(field));
    field->mPainted.clear();
    mArea->change(field);
    QVERIFY(field->mPainted.contains(QStringLiteral("1")));

    mArea->verticalScrollBar()->setValue(top - mArea->viewport()->height());
    QVERIFY(isScrolledOut(field)); // by one line of pixels
}

void tst_zelQtUnseenChange::fieldInAClosedWindowIsPaintedWithIt()
{
    Field *field = mArea->mFields.first();
    mArea->change(field);
    QVERIFY(mArea->open());
    mArea->settle();
    QVERIFY(field->mPainted.contains(QStringLiteral("1")));
    QVERIFY(field->updatesEnabled());
}

void tst_zelQtUnseenChange::heldUpdatesStayHeld()
{
    QVERIFY(mArea->open());
    Field *field = mArea->mFields.last();
    field->setUpdatesEnabled(false);
    mArea->change(field);
    QVERIFY(!field->updatesEnabled());
}

void tst_zelQtUnseenChange::listenersMayDeleteTheField()
{
    QVERIFY(mArea->open());
    const QPointer<Field> field(mArea->mFields.last());
    QVERIFY(isScrolledOut(field));
    changeMaybeUnseen(field, [field] { delete field.data(); });
    QVERIFY(!field);
}

QTEST_MAIN(tst_zelQtUnseenChange)
#include "tst_zelQtUnseenChange.moc"
