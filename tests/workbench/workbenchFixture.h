#pragma once

#include "appLanguage.h"
#include "appUnitSystem.h"
#include "dataFolder.h"
#include "mainWindow.h"
#include "maskView.h"
#include "moduleCatalogue.h"
#include "modulePage.h"
#include "springModule.h"
#include "window.h"
#include "zelQtCheckBox.h"
#include "zelQtComboBox.h"
#include "zelQtEditButton.h"
#include "zelQtRadioButton.h"
#include "zelQtValueEdit.h"

#include <QtTest>

#include <QTabWidget>

/// A main window with the spring open, driven by keys as a person does.
class WorkbenchFixture
{
public:
    WorkbenchFixture()
        : mCatalogue(dataFolder() + QStringLiteral("/modules"), mRegistry)
        , mWindow(mLanguage, mUnits, mCatalogue)
    {
        mRegistry.add<SpringModule>(L"SpringModule");
    }

    bool open()
    {
        if (!showAndActivate(&mWindow))
            return false;
        mPage = mWindow.openModule(QStringLiteral("spring"));
        return mPage;
    }

    template <class Widget> Widget *find(const QString &name) const
    {
        return mPage->findChild<Widget *>(name);
    }

    /// Types into a field and leaves it by Tab; false when there is no such field to type in.
    bool type(const QString &name, const QString &text)
    {
        auto *field = find<ZelQtValueEdit>(name);
        if (!field)
            return false;
        mPage->mask()->focusVariable(name);
        if (!focus(field))
            return false;
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Tab);
        return true;
    }

    /// Chooses the entry at `row` of a list by keys.
    bool choose(const QString &name, int row)
    {
        auto *list = find<ZelQtComboBox>(name);
        if (!list)
            return false;
        mPage->mask()->focusVariable(name);
        if (!focus(list))
            return false;
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        return list->currentIndex() == row;
    }

    bool check(const QString &name)
    {
        auto *button = find<ZelQtEditButton>(name + QStringLiteral("_edit"));
        if (!button)
            return false;
        button->checkBoxWidget()->click();
        return button->isChecked();
    }

    void calculate() { QTest::keyClick(&mWindow, Qt::Key_F5); }

    /// What stands in the field on the screen.
    QString text(const QString &name) const
    {
        const auto *field = find<ZelQtValueEdit>(name);
        return field ? field->text() : QStringLiteral("no field");
    }

    ZelModuleRegistry mRegistry;
    AppLanguage mLanguage;
    AppUnitSystem mUnits;
    ModuleCatalogue mCatalogue;
    MainWindow mWindow;
    ModulePage *mPage = nullptr;
};
