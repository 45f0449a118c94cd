#include "recorder.h"
#include "window.h"
#include "zelQtCheckBox.h"
#include "zelQtComboBox.h"
#include "zelQtEditButton.h"
#include "zelQtFileEdit.h"
#include "zelQtFlag.h"
#include "zelQtGroupBox.h"
#include "zelQtNotepad.h"
#include "zelQtRadioButton.h"
#include "zelQtSpinBox.h"
#include "zelQtValueEdit.h"

#include <QtTest>

// What a mask that is built anew does to its fields: a listener takes the widget away in the middle
// of what it tells. Where Qt itself goes on with a widget behind its signal, while a line is typed
// or left and when a list or a spin box changes, that has to be deleteLater().
class tst_zelQtConfirmation : public QObject
{
    Q_OBJECT

private slots:
    void checkBoxMayGoWithAnySignal();
    void radioButtonMayGoWithAnySignal();
    void flagMayGoWithAnySignal();
    void editButtonMayGoWithAnySignal();
    void groupBoxMayGoWithAnySignal();
    void lineMayGoWhenReturnConfirmsIt();
    void lineMayGoWhenItIsToldToConfirm();
    void numberMayGoWhenReturnConfirmsIt();
    void fileMayGoWithAnySignalOfAChosenFile();
    void notepadMayGoWhenItIsToldToConfirm();
    void notepadMayGoWhenItLosesTheFocus();
    void everyWidgetMayGoLater();
};

namespace {

using Deed = void (*)(QWidget *);

void nothing(QWidget *)
{
}

// The indicator lies at the left; the middle of a wide toggle misses it.
void click(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
}

void typeDigit(QWidget *widget)
{
    QTest::keyClick(widget, Qt::Key_1);
}

void pressReturn(QWidget *widget)
{
    QTest::keyClick(widget, Qt::Key_Return);
}

template <class Widget> void ensureConfirmed(QWidget *widget)
{
    static_cast<Widget *>(widget)->ensureValueConfirmed();
}

void pressDown(QWidget *widget)
{
    QTest::keyClick(widget, Qt::Key_Down);
}

// To the neighbour.
void leave(QWidget *widget)
{
    QTest::keyClick(widget, Qt::Key_Tab);
}

void pressUp(QWidget *widget)
{
    QTest::keyClick(widget, Qt::Key_Up);
}

/// A page with the widget alone. After `prepare` the doing of `deed` is recorded; with the signal
/// number `last`, counted from 1, `goAway` happens.
template <class Widget> class Scene
{
public:
    Scene()
        : mWidget(new Widget(&mPage))
    {
        mPage.resize(600, 200);
        mNeighbour.move(400, 0);
        mPage.mRecorder.recordProtocol(mWidget.data(), QStringLiteral("field"));
    }

    [[nodiscard]] bool enter(Deed prepare)
    {
        if (!showAndActivate(&mPage) || !focus(mWidget))
            return false;
        prepare(mWidget);
        mPage.take();
        return true;
    }

    template <class GoAway> void at(int last, GoAway goAway)
    {
        const auto count = [this, last, goAway] {
            if (mPage.mRecorder.events().size() == last)
                goAway(mWidget.data());
        };
        QObject::connect(&mPage, &RecordedPage::valueChanged, &mPage, count);
        QObject::connect(&mPage, &RecordedPage::valueConfirmed, &mPage, count);
        QObject::connect(mWidget.data(), &Widget::valueChanged, &mPage, count);
        QObject::connect(mWidget.data(), &Widget::valueConfirmed, &mPage, count);
    }

    RecordedPage mPage;
    QPointer<Widget> mWidget;
    QLineEdit mNeighbour{&mPage};
};

/// What the deed tells while nobody interferes.
template <class Widget> QStringList told(Deed prepare, Deed deed)
{
    Scene<Widget> scene;
    if (!scene.enter(prepare))
        return {};
    deed(scene.mWidget);
    return scene.mPage.take();
}

/// With each signal that the deed tells the widget goes, and then nobody hears any more of it.
template <class Widget> void mayGoWithAnySignal(int signalCount, Deed prepare, Deed deed)
{
    const QStringList all = told<Widget>(prepare, deed);
    QCOMPARE(all.size(), signalCount);
    for (int last = 1; last <= signalCount; ++last) {
        Scene<Widget> scene;
        QVERIFY(scene.enter(prepare));
        scene.at(last, [](Widget *widget) { delete widget; });
        deed(scene.mWidget);
        QVERIFY(!scene.mWidget);
        QCOMPARE(scene.mPage.take(), all.mid(0, last));
    }
}

/// The same by deleteLater(): all that the deed tells is heard.
template <class Widget> void mayGoLater(Deed prepare, Deed deed)
{
    const QStringList all = told<Widget>(prepare, deed);
    QVERIFY(!all.isEmpty());
    for (int last = 1; last <= all.size(); ++last) {
        Scene<Widget> scene;
        QVERIFY(scene.enter(prepare));
        scene.at(last, [](Widget *widget) { widget->deleteLater(); });
        deed(scene.mWidget);
        QCOMPARE(scene.mPage.take(), all);
        QTRY_VERIFY(!scene.mWidget);
    }
}

} // namespace

void tst_zelQtConfirmation::checkBoxMayGoWithAnySignal()
{
    mayGoWithAnySignal<ZelQtCheckBox>(4, nothing, click);
}

void tst_zelQtConfirmation::radioButtonMayGoWithAnySignal()
{
    mayGoWithAnySignal<ZelQtRadioButton>(4, nothing, click);
}

void tst_zelQtConfirmation::flagMayGoWithAnySignal()
{
    mayGoWithAnySignal<ZelQtFlag>(4, nothing, click);
}

void tst_zelQtConfirmation::groupBoxMayGoWithAnySignal()
{
    const auto makeCheckable = [](QWidget *widget) {
        static_cast<ZelQtGroupBox *>(widget)->setCheckable(true);
        widget->resize(200, 100);
    };
    const auto clickTitle = [](QWidget *widget) {
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    };
    mayGoWithAnySignal<ZelQtGroupBox>(4, makeCheckable, clickTitle);
}

void tst_zelQtConfirmation::editButtonMayGoWithAnySignal()
{
    // The page on show reports to the host as well, before the button does.
    const auto clickPage = [](QWidget *widget) {
        click(static_cast<ZelQtEditButton *>(widget)->currentWidget());
    };
    const auto showCheckBox = [](QWidget *widget) {
        static_cast<ZelQtEditButton *>(widget)->setEditType(ZelUIEditButtonType::CHECKBOX);
    };
    mayGoWithAnySignal<ZelQtEditButton>(6, showCheckBox, clickPage);
}

void tst_zelQtConfirmation::lineMayGoWhenReturnConfirmsIt()
{
    mayGoWithAnySignal<ZelQtLineEdit>(2, typeDigit, pressReturn);
}

void tst_zelQtConfirmation::lineMayGoWhenItIsToldToConfirm()
{
    mayGoWithAnySignal<ZelQtLineEdit>(2, typeDigit, ensureConfirmed<ZelQtLineEdit>);
}

void tst_zelQtConfirmation::numberMayGoWhenReturnConfirmsIt()
{
    mayGoWithAnySignal<ZelQtValueEdit>(2, typeDigit, pressReturn);
}

void tst_zelQtConfirmation::fileMayGoWithAnySignalOfAChosenFile()
{
    const auto choose = [](QWidget *widget) {
        static_cast<ZelQtFileEdit *>(widget)->setFile(QStringLiteral("a.txt"));
    };
    mayGoWithAnySignal<ZelQtFileEdit>(4, nothing, choose);
}

void tst_zelQtConfirmation::notepadMayGoWhenItIsToldToConfirm()
{
    mayGoWithAnySignal<ZelQtNotepad>(2, typeDigit, ensureConfirmed<ZelQtNotepad>);
}

void tst_zelQtConfirmation::notepadMayGoWhenItLosesTheFocus()
{
    mayGoWithAnySignal<ZelQtNotepad>(2, typeDigit, leave);
}

void tst_zelQtConfirmation::everyWidgetMayGoLater()
{
    mayGoLater<ZelQtLineEdit>(nothing, typeDigit);
    mayGoLater<ZelQtLineEdit>(typeDigit, leave);
    mayGoLater<ZelQtValueEdit>(nothing, typeDigit);
    mayGoLater<ZelQtNotepad>(nothing, typeDigit);
    mayGoLater<ZelQtSpinBox>(nothing, pressUp);
    const auto fill = [](QWidget *widget) {
        static_cast<ZelQtComboBox *>(widget)->addItems({QStringLiteral("a"), QStringLiteral("b")});
    };
    mayGoLater<ZelQtComboBox>(fill, pressDown);
}

QTEST_MAIN(tst_zelQtConfirmation)
#include "tst_zelQtConfirmation.moc"
