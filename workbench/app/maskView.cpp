#include "maskView.h"

#include "installationForm.h"
#include "zelQtLineEdit.h"
#include "zelQtTabPage.h"
#include "zelQtValueEdit.h"

#include <QApplication>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// Scrolls before it squeezes: prompts could shrink to three dots, and a mask of dots helps nobody.
class NaturalSize : public QWidget
{
public:
    explicit NaturalSize(QWidget *parent)
        : QWidget(parent)
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
    }
    QSize minimumSizeHint() const override { return layout()->sizeHint(); }
};

} // namespace

MaskView::MaskView(ZelLoadedModule &module, ZelFaultList &faults, QWidget *parent)
    : QWidget(parent)
{
    mFactory.addForm(L"InstallationForm", [&module](QWidget *formParent) {
        return new InstallationForm(module.meta(), formParent);
    });
    mMask = std::make_unique<ZelMask>(module, mFactory, faults);
    mFactory.discardUnused();
    placePages();

    mForms = findChildren<ZelQtUiWidget *>();
    mFields = findChildren<ZelQtValueEdit *>();
    const auto hosts = findChildren<ZelQtParentWidget *>();
    for (ZelQtParentWidget *host : hosts)
        listenTo(host);
    fillForms();
}

MaskView::~MaskView() = default;

// One page fills the view, several become tabs. A window smaller than the mask scrolls.
void MaskView::placePages()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    layout->addWidget(area);

    mContent = new NaturalSize(area);
    area->setWidget(mContent);
    const auto &pages = mMask->pages();
    if (pages.size() == 1) {
        mContent->layout()->addWidget(dynamic_cast<QWidget *>(pages.front()));
        return;
    }
    auto *tabs = new QTabWidget(mContent);
    for (ZelUITabPage *page : pages) {
        auto *widget = dynamic_cast<QWidget *>(page);
        tabs->addTab(widget, widget->windowTitle());
        connect(widget, &QWidget::windowTitleChanged, tabs, [tabs, widget](const QString &title) {
            tabs->setTabText(tabs->indexOf(widget), title);
        });
    }
    mContent->layout()->addWidget(tabs);
}

// Fields report to the nearest host, which is their page or form: each is listened to. Information
// buttons pass over pages, but a form keeps what its buttons ask for.
void MaskView::listenTo(ZelQtParentWidget *host)
{
    connect(host, &ZelQtParentWidget::valueChanged, this, &MaskView::valueChanged);
    if (auto *form = qobject_cast<ZelQtUiWidget *>(host)) {
        connect(form, &ZelQtParentWidget::valueConfirmed, this,
                [this, form] { takeFromForm(form); });
        connect(form, qOverload<int>(&ZelQtParentWidget::infoChanged), this,
                qOverload<int>(&MaskView::infoChanged));
        connect(form, qOverload<QString>(&ZelQtParentWidget::infoChanged), this,
                qOverload<QString>(&MaskView::infoChanged));
    } else {
        connect(host, &ZelQtParentWidget::valueConfirmed, this, &MaskView::takeFromMask);
    }
}

void MaskView::takeFromMask()
{
    mMask->collect();
    refresh();
    Q_EMIT valueConfirmed();
}

// A form writes to the module's data itself, and the mask shows what it wrote: collecting first
// would put the mask's own values over it.
void MaskView::takeFromForm(ZelQtUiWidget *form)
{
    form->getData();
    refresh();
    Q_EMIT valueConfirmed();
}

QSize MaskView::sizeHint() const
{
    return mContent->sizeHint();
}

void MaskView::refresh()
{
    mMask->refresh();
    showMessageStates();
    fillForms();
}

ZelCalcResult MaskView::calculate()
{
    if (auto *field = qobject_cast<ZelQtLineEdit *>(QApplication::focusWidget());
        field && isAncestorOf(field))
        field->ensureValueConfirmed();
    const ZelCalcResult result = mMask->calculate();
    showMessageStates();
    fillForms();
    return result;
}

void MaskView::showMessageStates()
{
    for (ZelQtValueEdit *field : qAsConst(mFields)) {
        if (const ZelUIVar *variable = field->modelVariable())
            field->setMessageState(meta().messageState(*variable, mMask->id()));
    }
}

void MaskView::fillForms()
{
    for (ZelQtUiWidget *form : qAsConst(mForms))
        form->setData();
}

void MaskView::retranslate()
{
    mMask->retranslate();
    showMessageStates();
    fillForms();
}

void MaskView::updateUnitSystem(bool keepDefault)
{
    mMask->updateUnitSystem(keepDefault);
    refresh();
}

void MaskView::focusVariable(const QString &name)
{
    auto *widget = findChild<QWidget *>(name);
    if (!widget)
        return;
    for (QWidget *page = widget; page && page != this; page = page->parentWidget()) {
        // Pages stand in the stack inside their tab widget.
        QWidget *stack = page->parentWidget();
        auto *tabs = stack ? qobject_cast<QTabWidget *>(stack->parentWidget()) : nullptr;
        if (tabs && tabs->indexOf(page) >= 0)
            tabs->setCurrentWidget(page);
    }
    widget->setFocus(Qt::OtherFocusReason);
}
