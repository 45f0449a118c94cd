#include "zelQtFloatingLabel.h"

#include "zelQtFloatingLabelPlace_p.h"

#include <QApplication>
#include <QScreen>
#include <QStyleOptionFrame>
#include <QStylePainter>

zelQtFloatingLabel::zelQtFloatingLabel()
    : QLabel(nullptr, Qt::ToolTip | Qt::BypassGraphicsProxyWidget)
{
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    ensurePolished();
    setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
    setFrameStyle(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft);
    setIndent(1);
    qApp->installEventFilter(this);
    setWindowOpacity(style()->styleHint(QStyle::SH_ToolTipLabel_Opacity, nullptr, this) / 255.0);
}

zelQtFloatingLabel::~zelQtFloatingLabel() = default;

zelQtFloatingLabel *zelQtFloatingLabel::instance()
{
    // Never deleted: a static object would die after the application, which a widget can't.
    static auto *label = new zelQtFloatingLabel;
    return label;
}

void zelQtFloatingLabel::showFloatingLabel(const QPoint &pos, const QString &text, QWidget *widget)
{
    if (text.isEmpty()) {
        hideFloatingLabel();
        return;
    }
    const QScreen *screen = widget ? widget->window()->screen() : nullptr;
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    zelQtFloatingLabel *label = instance();
    label->setText(text);
    label->setWordWrap(true);
    label->resize(label->sizeHint() + QSize(1, 0));
    label->move(floatingLabelPlace(pos, label->size(), screen->geometry()));
    label->show();
}

void zelQtFloatingLabel::hideFloatingLabel()
{
    instance()->hide();
}

bool zelQtFloatingLabel::isActive()
{
    return instance()->isVisible();
}

bool zelQtFloatingLabel::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Leave:
    case QEvent::Close:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::Wheel:
        hide();
        break;
    default:
        break;
    }
    return false;
}

void zelQtFloatingLabel::paintEvent(QPaintEvent *event)
{
    QStylePainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_PanelTipLabel, option);
    painter.end();
    QLabel::paintEvent(event);
}

void zelQtFloatingLabel::resizeEvent(QResizeEvent *event)
{
    QStyleHintReturnMask mask;
    QStyleOption option;
    option.initFrom(this);
    if (style()->styleHint(QStyle::SH_ToolTip_Mask, &option, this, &mask))
        setMask(mask.region);
    QWidget::resizeEvent(event);
}
