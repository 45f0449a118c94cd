#include "zelQtWidgetHelpers_p.h"

#include "zelDomNode.h"
#include "zelQtAuthorItInterface.h"
#include "zelQtConversions.h"
#include "zelQtDefaultDecimals_p.h"
#include "zelQtParentDialog.h"
#include "zelQtParentWidget.h"
#include "zelUIItem.h"

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

namespace {

// Calls `raise` with the nearest host; a widget that is both kinds counts as ZelQtParentWidget.
template <class Raise> bool withHost(QWidget *widget, bool skipTabPages, Raise raise)
{
    for (QWidget *ancestor = widget->parentWidget(); ancestor;
         ancestor = ancestor->parentWidget()) {
        if (skipTabPages && ancestor->inherits("ZelQtTabPage"))
            continue;
        if (auto *page = qobject_cast<ZelQtParentWidget *>(ancestor)) {
            raise(page);
            return true;
        }
        if (auto *dialog = qobject_cast<ZelQtParentDialog *>(ancestor)) {
            raise(dialog);
            return true;
        }
    }
    return false;
}

QString helpFileOf(const QWidget *widget)
{
    // The interface has precedence: the model side of such a widget isn't asked, even for code 0.
    if (const auto *help = dynamic_cast<const ZelQtAuthorItInterface *>(widget))
        return ZelQtAuthorItInterface::authorItFile(help->authorItCode());
    if (const auto *object = dynamic_cast<const ZelUIObject *>(widget))
        return ZelQtAuthorItInterface::authorItFile(object->getAuthorItCode());
    return QString();
}

} // namespace

int standardHeight(const QWidget *widget)
{
    const QFontMetrics metrics = widget->fontMetrics();
    return metrics.height() + metrics.lineSpacing() / 2;
}

int standardWidth(const QWidget *widget)
{
    const int characters = zelQtDefaultDecimals <= 4 ? 16 : zelQtDefaultDecimals + 12;
    return widget->fontMetrics().averageCharWidth() * characters;
}

int maximumWidth(const QWidget *widget)
{
    return 50 * widget->fontMetrics().averageCharWidth();
}

bool notifyHostValueChanged(QWidget *widget)
{
    return withHost(widget, false, [](auto *host) { Q_EMIT host->valueChanged(); });
}

bool notifyHostValueConfirmed(QWidget *widget)
{
    return withHost(widget, false, [](auto *host) { Q_EMIT host->valueConfirmed(); });
}

bool notifyHostInfoChanged(QWidget *widget, const QString &file)
{
    return withHost(widget, true, [&file](auto *host) { Q_EMIT host->infoChanged(file); });
}

bool notifyHostInfoChanged(QWidget *widget, int id)
{
    return withHost(widget, true, [id](auto *host) { Q_EMIT host->infoChanged(id); });
}

void applyElementName(QWidget *widget, const ZelDomNode *node)
{
    auto *object = dynamic_cast<ZelUIObject *>(widget);
    if (!object)
        return;
    const zelWString name = object->getName();
    if (!name.empty()) {
        auto *item = dynamic_cast<ZelUIItem *>(widget);
        widget->setWhatsThis(toQString(name));
        widget->setObjectName(toQString(item ? item->getItemName() : name));
    } else if (node && node->hasAttribute(L"name")) {
        widget->setObjectName(toQString(node->attribute(L"name")));
    }
    if (auto *help = dynamic_cast<ZelQtAuthorItInterface *>(widget))
        help->setAuthorItCode(object->getAuthorItCode());
}

QString helpFileOfFocusWidget()
{
    QString file;
    for (QWidget *widget = QApplication::focusWidget(); widget && file.isEmpty();
         widget = widget->parentWidget())
        file = helpFileOf(widget);
    return file;
}

void restoreAllOverrideCursors()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}
