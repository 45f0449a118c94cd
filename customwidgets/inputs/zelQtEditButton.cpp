#include "zelQtEditButton.h"

#include "zelQtCheckBox.h"
#include "zelQtConfirmation_p.h"
#include "zelQtRadioButton.h"
#include "zelUIMultiVar.h"

#include <QEvent>
#include <QLabel>

ZelQtEditButton::ZelQtEditButton(QWidget *parent)
    : QStackedWidget(parent)
    , ZelUIEditButton(ZelUIEditButtonType::CHECKBOX)
    , mLabel(new QLabel(this))
    , mCheckBox(new ZelQtCheckBox(this))
    , mRadioButton(new ZelQtRadioButton(this))
{
    addWidget(mLabel);
    addButton(mCheckBox, &ZelQtEditButton::checkBoxClicked, &ZelQtEditButton::checkBoxToggled);
    addButton(mRadioButton, &ZelQtEditButton::radioButtonClicked,
              &ZelQtEditButton::radioButtonToggled);
    mRadioButton->setAutoExclusive(false);
    ZelQtEditButton::retranslateStrings();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

ZelQtEditButton::ZelQtEditButton(ZelUIEditButtonType type, QWidget *parent)
    : ZelQtEditButton(parent)
{
    ZelQtEditButton::setEditType(type);
}

ZelQtEditButton::~ZelQtEditButton() = default;

template <class Clicked, class Toggled>
void ZelQtEditButton::addButton(QAbstractButton *button, Clicked clickedSignal,
                                Toggled toggledSignal)
{
    button->setFocusPolicy(Qt::ClickFocus);
    addWidget(button);
    // The order is that in which one click is told, behind the button's own protocol. Qt tells the
    // toggling before the click.
    connect(button, &QAbstractButton::clicked, this, &ZelQtEditButton::emitValueChanged);
    connect(button, &QAbstractButton::clicked, this, &ZelQtEditButton::emitValueConfirmed);
    connect(button, &QAbstractButton::clicked, this, clickedSignal);
    connect(button, &QAbstractButton::toggled, this, toggledSignal);
    connect(button, &QAbstractButton::toggled, this, &ZelQtEditButton::toggled);
    connect(button, &QAbstractButton::clicked, this, &ZelQtEditButton::clicked);
}

QAbstractButton *ZelQtEditButton::currentButton() const
{
    return qobject_cast<QAbstractButton *>(currentWidget());
}

bool ZelQtEditButton::isChecked() const
{
    const QAbstractButton *button = currentButton();
    return button && button->isChecked();
}

void ZelQtEditButton::setChecked(bool checked)
{
    if (QAbstractButton *button = currentButton())
        button->setChecked(checked);
}

void ZelQtEditButton::enableDefaultToolTip(bool enable)
{
    mDefaultToolTip = enable;
    retranslateStrings();
}

QSize ZelQtEditButton::sizeHint() const
{
    return QFrame::sizeHint();
}

void ZelQtEditButton::setup(ZelUIMultiVar *variable, AttrMap &attributes, int component)
{
    ZelUIEditButton::setup(variable, attributes, component);
    applyElementName(this, nullptr);
    if (variable && variable->IsUpdateBlocking())
        disableValueChanged();
}

void ZelQtEditButton::updateState(Meta *meta, int64_t id)
{
    ZelUIEditButton::updateState(meta, id);
    setEnabled(mEnabled);
    // A disabled switch shows nothing rather than a greyed check.
    if (!mEnabled)
        setCurrentWidget(mLabel);
    else if (currentWidget() == mLabel)
        showPageOfType();
    setVisible(mVisible);
}

void ZelQtEditButton::setData(Meta *meta, int64_t id)
{
    ZelUIEditButton::setData(meta, id);
    setChecked(mChecked);
}

void ZelQtEditButton::getData(Meta *meta, int64_t id)
{
    mChecked = isChecked();
    ZelUIEditButton::getData(meta, id);
}

void ZelQtEditButton::setEditType(ZelUIEditButtonType type)
{
    ZelUIEditButton::setEditType(type);
    showPageOfType();
    const bool hidden = currentWidget() == mLabel && type != ZelUIEditButtonType::LABEL;
    setVisible(!hidden);
}

void ZelQtEditButton::showPageOfType()
{
    if (mEditType == ZelUIEditButtonType::CHECKBOX)
        setCurrentWidget(mCheckBox);
    else if (mEditType == ZelUIEditButtonType::RADIOBUTTON)
        setCurrentWidget(mRadioButton);
    else
        setCurrentWidget(mLabel);
}

void ZelQtEditButton::disableValueChanged()
{
    for (QAbstractButton *button :
         {static_cast<QAbstractButton *>(mCheckBox), static_cast<QAbstractButton *>(mRadioButton)})
        disconnect(button, &QAbstractButton::clicked, this, &ZelQtEditButton::emitValueChanged);
}

void ZelQtEditButton::disableValueConfirmed()
{
    for (QAbstractButton *button :
         {static_cast<QAbstractButton *>(mCheckBox), static_cast<QAbstractButton *>(mRadioButton)})
        disconnect(button, &QAbstractButton::clicked, this, &ZelQtEditButton::emitValueConfirmed);
}

void ZelQtEditButton::retranslateStrings()
{
    QString toolTip;
    QString checkBoxTip;
    QString radioButtonTip;
    if (mDefaultToolTip) {
        toolTip = tr("eingeben/berechnen");
        checkBoxTip = tr("Legt fest ob dieser Wert eingegeben oder berechnet werden soll");
        radioButtonTip = tr("Legt fest welche Werte dieser Gruppe eingegeben und welche berechnet "
                            "werden sollen");
    }
    mCheckBox->setToolTip(toolTip);
    mCheckBox->setStatusTip(checkBoxTip);
    mRadioButton->setToolTip(toolTip);
    mRadioButton->setStatusTip(radioButtonTip);
}

void ZelQtEditButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateStrings();
    QFrame::changeEvent(event);
}

void ZelQtEditButton::emitValueChanged()
{
    tellValueChanged(this);
}

void ZelQtEditButton::emitValueConfirmed()
{
    tellValueConfirmed(this);
}
