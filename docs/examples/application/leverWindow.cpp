#include "leverWindow.h"

#include "leverModule.h"
#include "loadForm.h"
#include "zelQtConversions.h"
#include "zelQtLineEdit.h"
#include "zelQtMessageBox.h"
#include "zelQtTabPage.h"
#include "zelQtValueEdit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

//! [mask]
LeverWindow::LeverWindow(const QString &description, QWidget *parent)
    : ZelQtParentWidget(parent)
    , mPages(new QWidget(this))
    , mState(new QLabel(this))
{
    ZelModuleRegistry registry;
    registerLeverModule(registry);
    mModule = zelLoadModule(description.toStdString(), registry, mFaults);
    mFactory.addForm(L"LoadForm", [this](QWidget *formParent) {
        return new LoadForm(mModule->meta(), formParent);
    });
    mMask = std::make_unique<ZelMask>(*mModule, mFactory, mFaults);
    mFactory.discardUnused();

    auto *pages = new QVBoxLayout(mPages);
    for (ZelUITabPage *page : mMask->pages())
        pages->addWidget(dynamic_cast<QWidget *>(page));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(mPages);
    layout->addWidget(mState);

    const auto hosts = mPages->findChildren<ZelQtParentWidget *>();
    for (ZelQtParentWidget *host : hosts)
        listenTo(host);
    showData();
}
//! [mask]

//! [destructor]
LeverWindow::~LeverWindow()
{
    // The pages read the module, which goes first otherwise.
    delete mPages;
}
//! [destructor]

//! [signals]
void LeverWindow::listenTo(ZelQtParentWidget *host)
{
    connect(host, &ZelQtParentWidget::valueChanged, this,
            [this] { showState(tr("Resultate nicht konsistent")); });
    if (auto *form = qobject_cast<LoadForm *>(host)) {
        connect(form, &ZelQtParentWidget::valueConfirmed, this, [this, form] {
            form->getData();
            showData();
        });
    } else {
        connect(host, &ZelQtParentWidget::valueConfirmed, this, &LeverWindow::takeFromMask);
    }
}

void LeverWindow::takeFromMask()
{
    mMask->collect();
    showData();
}

void LeverWindow::showData()
{
    mMask->refresh();
    const auto fields = mPages->findChildren<ZelQtValueEdit *>();
    for (ZelQtValueEdit *field : fields) {
        if (const ZelUIVar *variable = field->modelVariable())
            field->setMessageState(meta().messageState(*variable, mMask->id()));
    }
    const auto forms = mPages->findChildren<LoadForm *>();
    for (LoadForm *form : forms)
        form->setData();
}
//! [signals]

//! [calculate]
void LeverWindow::calculate()
{
    // F5 leaves no field, so what is being typed has to be confirmed first.
    if (auto *field = qobject_cast<ZelQtLineEdit *>(QApplication::focusWidget()))
        field->ensureValueConfirmed();
    const ZelCalcResult result = mMask->calculate();
    showData();
    showState(result.mSucceeded ? tr("Resultate konsistent") : tr("Resultate nicht konsistent"));
    for (const ZelCalcMessage &message : result.mMessages) {
        if (message.mSeverity == ZelMessageSeverity::Error)
            ZelQtMessageBox::error(toQString(message.text()), this);
    }
}

void LeverWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F5)
        calculate();
    ZelQtParentWidget::keyPressEvent(event);
}
//! [calculate]

void LeverWindow::showState(const QString &state)
{
    mState->setText(state);
}

//! [follow]
void LeverWindow::updateUnitSystem(bool keepDefault)
{
    mMask->updateUnitSystem(keepDefault);
    ZelQtParentWidget::updateUnitSystem(keepDefault);
    showData();
}

void LeverWindow::retranslateStrings()
{
    ZelQtParentWidget::retranslateStrings();
    mMask->retranslate();
    showData();
}
//! [follow]
