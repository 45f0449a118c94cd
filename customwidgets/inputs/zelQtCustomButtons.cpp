#include "zelQtCustomButtons.h"

#include "zelQtButtonModel_p.h"
#include "zelQtParentWidget.h"
#include "zelQtWidgetHelpers_p.h"

#include <QIcon>
#include <QResizeEvent>

// The bases, the link button, the icon button and the result button; the buttons of fixed roles
// stand in zelQtRoleButtons.cpp.

ZelQtToolButton::ZelQtToolButton(QWidget *parent)
    : QToolButton(parent)
{
    setAutoRaise(true);
}

ZelQtToolButton::ZelQtToolButton(const QString &iconFile, QWidget *parent)
    : ZelQtToolButton(parent)
{
    setIcon(QIcon(iconFile));
}

ZelQtToolButton::~ZelQtToolButton() = default;

QSize ZelQtToolButton::sizeHint() const
{
    if (!mIconOnly)
        return QToolButton::sizeHint();
    const int edge = standardHeight(this);
    return {edge, edge};
}

void ZelQtToolButton::setup(ZelUIVar *variable, AttrMap &attributes)
{
    ZelUIPushButton::setup(variable, attributes);
    mIsSetUp = true;
    applyElementName(this, nullptr);
}

void ZelQtToolButton::setup(ZelUIVarLubList *variable, AttrMap &attributes, bool first, bool second)
{
    ZelUIPushButton::setup(variable, attributes, first, second);
    mIsSetUp = true;
    applyElementName(this, nullptr);
}

void ZelQtToolButton::setup(ZelUIVarTable *variable, AttrMap &attributes, ZelUIButtonData *data)
{
    ZelUIPushButton::setup(variable, attributes, data);
    mIsSetUp = true;
    applyElementName(this, nullptr);
}

void ZelQtToolButton::updateState(Meta *meta, int64_t id)
{
    ZelUIPushButton::updateState(meta, id);
    applyButtonState(this);
}

void ZelQtToolButton::updateState(ZelUIState state)
{
    ZelUIPushButton::updateState(state);
    applyButtonState(this);
}

void ZelQtToolButton::updateState(bool enabled, bool visible)
{
    ZelUIPushButton::updateState(enabled, visible);
    applyButtonState(this);
}

void ZelQtToolButton::retranslate()
{
    applyButtonTips(this);
}

bool ZelQtToolButton::addIconFile(const zelWString &file)
{
    if (ZelUIPushButton::addIconFile(file))
        setIcon(QIcon(toQString(file)));
    // False with the icon set, too: callers rely on it.
    return false;
}

void ZelQtToolButton::setToolTipAdvanced(const QString &text)
{
    setToolTip(text);
}

void ZelQtToolButton::retranslateStrings()
{
}

void ZelQtToolButton::resizeEvent(QResizeEvent *event)
{
    // Narrower buttons keep the icon size of the style.
    if (mIconOnly && event->size().width() >= 20)
        setIconSize(QSize(32, 32));
    QToolButton::resizeEvent(event);
}

void ZelQtToolButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateStrings();
        // The texts of the model win over the fixed ones. A button without model would lose its own
        // tips, and those that its owner gave it, for the host is translated before its children.
        if (mIsSetUp || hasModelTexts())
            retranslate();
    }
    QToolButton::changeEvent(event);
}

ZelQtLinkButton::ZelQtLinkButton(const QString &iconFile, ZelQtParentWidget *link, QWidget *parent)
    : ZelQtToolButton(iconFile, parent)
    , mLink(link)
{
}

ZelQtLinkButton::~ZelQtLinkButton() = default;

ZelQtParentWidget *ZelQtLinkButton::link() const
{
    return mLink;
}

ZelQtIconButton::ZelQtIconButton(QWidget *parent)
    : ZelQtPushButton(parent)
{
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

ZelQtIconButton::ZelQtIconButton(const QString &iconFile, QWidget *parent)
    : ZelQtIconButton(QIcon(iconFile), parent)
{
}

ZelQtIconButton::ZelQtIconButton(const QIcon &icon, QWidget *parent)
    : ZelQtIconButton(parent)
{
    setIcon(icon);
}

ZelQtIconButton::~ZelQtIconButton() = default;

QSize ZelQtIconButton::sizeHint() const
{
    const int edge = standardHeight(this);
    return {edge, edge};
}

void ZelQtIconButton::setToolTipAdvanced(const QString &text)
{
    setToolTip(text);
}

void ZelQtIconButton::retranslateStrings()
{
}

void ZelQtIconButton::changeEvent(QEvent *event)
{
    // Unlike a tool button it doesn't call retranslate() of the model side.
    if (event->type() == QEvent::LanguageChange)
        retranslateStrings();
    ZelQtPushButton::changeEvent(event);
}

ZelQtTarvexResultButton::ZelQtTarvexResultButton(int result, QWidget *parent)
    : QPushButton(parent)
    , mTarvexResult(result)
{
}

ZelQtTarvexResultButton::ZelQtTarvexResultButton(int result, const QString &text, QWidget *parent)
    : QPushButton(text, parent)
    , mTarvexResult(result)
{
}

ZelQtTarvexResultButton::ZelQtTarvexResultButton(int result, const QIcon &icon, const QString &text,
                                                 QWidget *parent)
    : QPushButton(icon, text, parent)
    , mTarvexResult(result)
{
}

ZelQtTarvexResultButton::~ZelQtTarvexResultButton() = default;
