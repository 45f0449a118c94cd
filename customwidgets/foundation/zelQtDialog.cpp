#include "zelQtDialog.h"

#include "zelQtCalcVarInput.h"
#include "zelQtCustomButtons.h"
#include "zelQtHostServices_p.h"
#include "zelQtWidgetHelpers_p.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

ZelQtDialog::ZelQtDialog(QWidget *parent)
    : QDialog(parent)
{
    init();
}

ZelQtDialog::ZelQtDialog(const QString &title, QWidget *parent)
    : QDialog(parent)
{
    init();
    setWindowTitle(title);
}

ZelQtDialog::~ZelQtDialog() = default;

void ZelQtDialog::init()
{
    restoreAllOverrideCursors();
    // These and no others, so that no button for context help shows.
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                   | Qt::WindowCloseButtonHint);
    mButtonBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(mButtonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(mButtonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    mButtonBox->button(QDialogButtonBox::Ok)->setAutoDefault(true);
    mLayout = new QVBoxLayout;
    mLayout->addWidget(mButtonBox);
    setLayout(mLayout);
}

void ZelQtDialog::add(QWidget *widget)
{
    mLayout->insertWidget(mLayout->count() - 1, widget);
}

void ZelQtDialog::useSingleButton(int button)
{
    const auto standard = static_cast<QDialogButtonBox::StandardButton>(button);
    mButtonBox->setStandardButtons(standard);
    mButtonBox->button(standard)->setAutoDefault(true);
}

void ZelQtDialog::useCancelButtonOnly()
{
    useSingleButton(QDialogButtonBox::Cancel);
}

void ZelQtDialog::useAbortButtonOnly()
{
    useSingleButton(QDialogButtonBox::Abort);
}

void ZelQtDialog::setCenterButtons(bool center)
{
    mButtonBox->setCenterButtons(center);
}

void ZelQtDialog::acceptTarvexResultButton()
{
    const auto *button = qobject_cast<ZelQtTarvexResultButton *>(sender());
    if (!button)
        return;
    mTarvexResult = button->tarvexResult();
    accept();
}

void ZelQtDialog::showEvent(QShowEvent *event)
{
    ZelQtCalcVarInput::checkSize(this);
    if (!event->spontaneous())
        resizeUnsizedWindow(this);
    QDialog::showEvent(event);
}
