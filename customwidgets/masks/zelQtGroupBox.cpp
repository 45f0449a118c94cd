#include "zelQtGroupBox.h"

#include "zelQtConfirmation_p.h"
#include "zelQtConversions.h"
#include "zelQtModelParts_p.h"
#include "zelQtSpacerItems.h"
#include "zelQtWidgetHelpers_p.h"
#include "zelUIColumn.h"

#include <QApplication>
#include <QVBoxLayout>

namespace {

// A head or a foot: as it is when it may take the whole width, else pushed to the left. Null for a
// column that is no layout.
QLayout *edgeLayout(ZelUIColumn *column, bool wide)
{
    auto *layout = dynamic_cast<QLayout *>(column);
    if (!layout || wide)
        return layout;
    auto *row = new QHBoxLayout;
    row->addLayout(layout);
    row->addItem(hRightSpacerItem());
    return row;
}

void addEdge(QVBoxLayout *vertical, ZelUIColumn *column, bool pack)
{
    const bool views = column->containsViews(false);
    if (QLayout *layout = edgeLayout(column, views || !pack))
        vertical->addLayout(layout, views ? 100 : 0);
}

QHBoxLayout *columnRow(const std::vector<ZelUIColumn *> &columns, bool pack)
{
    auto *row = new QHBoxLayout;
    appendColumns(row, columns);
    if (pack)
        row->addItem(hRightSpacerItem());
    return row;
}

} // namespace

ZelQtGroupBox::ZelQtGroupBox(QWidget *parent)
    : QGroupBox(parent)
{
    init();
}

ZelQtGroupBox::ZelQtGroupBox(const QString &title, QWidget *parent)
    : QGroupBox(title, parent)
{
    init();
}

ZelQtGroupBox::~ZelQtGroupBox() = default;

// The order of the connections is the order of the signals.
void ZelQtGroupBox::init()
{
    takeInactiveText();
    connect(this, &QGroupBox::clicked, this, &ZelQtGroupBox::emitValueChanged);
    connect(this, &QGroupBox::clicked, this, &ZelQtGroupBox::emitValueConfirmed);
}

void ZelQtGroupBox::takeInactiveText()
{
    QPalette own = palette();
    own.setColor(QPalette::Inactive, QPalette::WindowText,
                 QApplication::palette().color(QPalette::Inactive, QPalette::WindowText));
    setPalette(own);
}

// A palette keeps or inherits a role in all its groups: having set the inactive text, the box would
// keep the whole role when the colours of the application change, and so would all labels in it.
void ZelQtGroupBox::followPalette()
{
    const QPalette outer = parentWidget() ? parentWidget()->palette() : QApplication::palette();
    QPalette own = palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Disabled})
        own.setColor(group, QPalette::WindowText, outer.color(group, QPalette::WindowText));
    own.setColor(QPalette::Inactive, QPalette::WindowText,
                 QApplication::palette().color(QPalette::Inactive, QPalette::WindowText));
    // Setting it comes back here as another change.
    if (own != palette())
        setPalette(own);
}

void ZelQtGroupBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        followPalette();
    QGroupBox::changeEvent(event);
}

void ZelQtGroupBox::setup(const ZelDomNode *node)
{
    ZelUIGroup::setup(node);
    applyElementName(this, nullptr);
    setFlat(mFlat);
}

void ZelQtGroupBox::updateState(Meta *meta, int64_t id)
{
    ZelUIGroup::updateState(meta, id);
    setVisible(mVisible);
}

void ZelQtGroupBox::makeLayout(bool pack)
{
    ZelUIBoard::makeLayout(pack);
    if (mColumns.empty()) {
        // A foot has no place beside a head that stands alone, and that is meant.
        if (mHead) {
            const bool wide = mHead->containsViews(false) || !pack;
            if (QLayout *layout = edgeLayout(mHead, wide))
                setLayout(layout);
        }
        return;
    }
    if (!mHead && !mFoot) {
        setLayout(columnRow(mColumns, pack));
        return;
    }
    auto *vertical = new QVBoxLayout;
    if (mHead)
        addEdge(vertical, mHead, pack);
    vertical->addLayout(columnRow(mColumns, pack));
    if (mFoot)
        addEdge(vertical, mFoot, pack);
    setLayout(vertical);
}

// The title alone: the members are reached by the walk of the page.
void ZelQtGroupBox::retranslate()
{
    setTitle(toQString(getTitle()));
}

void ZelQtGroupBox::disableValueChanged()
{
    disconnect(this, &QGroupBox::clicked, this, &ZelQtGroupBox::emitValueChanged);
}

void ZelQtGroupBox::emitValueChanged()
{
    tellValueChanged(this);
}

void ZelQtGroupBox::emitValueConfirmed()
{
    tellValueConfirmed(this);
}
