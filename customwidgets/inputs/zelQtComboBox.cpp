#include "zelQtComboBox.h"

#include "zelQtConfirmation_p.h"
#include "zelQtConversions.h"
#include "zelQtItemDelegate.h"
#include "zelQtTextHelpers.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QStatusTipEvent>

#include <algorithm>

static constexpr auto chosen = qOverload<int>(&QComboBox::activated);
static constexpr auto indexChanged = qOverload<int>(&QComboBox::currentIndexChanged);

// These belong to the window: help, and the shortcuts of the application.
static bool isKeyOfParent(const QKeyEvent *event)
{
    return event->key() == Qt::Key_F1 || event->modifiers() == Qt::ControlModifier;
}

ZelQtComboBox::ZelQtComboBox(QWidget *parent)
    : QComboBox(parent)
{
    init();
}

ZelQtComboBox::ZelQtComboBox(const QString &database, const QString &table, QWidget *parent)
    : ZelQtComboBox(database, table, 0, {}, parent)
{
}

ZelQtComboBox::ZelQtComboBox(const zelWString &database, const zelWString &table, QWidget *parent)
    : ZelQtComboBox(database, table, 0, {}, parent)
{
}

ZelQtComboBox::ZelQtComboBox(const zelWString &database, const zelWString &table,
                             const zelWString &idColumn, QWidget *parent)
    : ZelQtComboBox(database, table, 0, {}, parent)
{
    mIdColumn = idColumn;
}

ZelQtComboBox::ZelQtComboBox(const QString &database, const QString &table,
                             const std::set<short> &excluded, QWidget *parent)
    : ZelQtComboBox(database, table, 0, excluded, parent)
{
}

ZelQtComboBox::ZelQtComboBox(const zelWString &database, const zelWString &table,
                             const std::set<short> &excluded, QWidget *parent)
    : ZelQtComboBox(database, table, 0, excluded, parent)
{
}

ZelQtComboBox::ZelQtComboBox(const QString &database, const QString &table, uint64_t key,
                             const std::set<short> &excluded, QWidget *parent)
    : ZelQtComboBox(zelWString(database.toStdWString()), zelWString(table.toStdWString()), key,
                    excluded, parent)
{
}

ZelQtComboBox::ZelQtComboBox(const zelWString &database, const zelWString &table, uint64_t key,
                             const std::set<short> &excluded, QWidget *parent)
    : ZelQtComboBox(parent)
{
    mDatabase = database;
    mTable = table;
    mListKey = key;
    mExcludedIDs = excluded;
}

ZelQtComboBox::~ZelQtComboBox() = default;

void ZelQtComboBox::init()
{
    mDelegate = new ZelQtItemDelegate(this);
    mDelegate->setMinWidth(0);
    mDelegate->initRendering();
    setItemDelegate(mDelegate);
    // In this order: the change comes before its confirmation.
    connect(this, chosen, this, &ZelQtComboBox::emitValueChanged);
    connect(this, &QComboBox::editTextChanged, this, &ZelQtComboBox::emitValueChanged);
    connect(this, chosen, this, &ZelQtComboBox::emitValueConfirmed);
    connect(this, &QComboBox::textHighlighted, this, &ZelQtComboBox::updateViewStatusTip);
    // Not currentTextChanged, which comes while the user types too.
    connect(this, indexChanged, this, [this](int index) { updateStatusTip(itemText(index)); });
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
}

QString ZelQtComboBox::database() const
{
    return toQString(mDatabase);
}

void ZelQtComboBox::setDatabase(const QString &database)
{
    mDatabase = database.toStdWString();
}

QString ZelQtComboBox::table() const
{
    return toQString(mTable);
}

void ZelQtComboBox::setTable(const QString &table)
{
    mTable = table.toStdWString();
}

void ZelQtComboBox::setIndexFixed(bool fixed)
{
    if (!isEnabled())
        return;
    const QPalette application = QApplication::palette();
    QPalette own = palette();
    own.setBrush(QPalette::Base, fixed ? application.window() : application.base());
    own.setBrush(QPalette::Window, fixed ? application.dark() : application.window());
    setPalette(own);
    // The model's flag is computed for a disabled element too, where the box must not follow.
    mReadOnly = fixed;
    mIndexFixed = fixed;
}

void ZelQtComboBox::setIndexNotFixed(bool notFixed)
{
    setIndexFixed(!notFixed);
}

void ZelQtComboBox::setOurMinWidth(bool use)
{
    mOurMinWidth = use;
}

void ZelQtComboBox::setOurStdWidth(bool use)
{
    mOurStdWidth = use;
    setSizePolicy(use ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ZelQtComboBox::setOurMaxWidth(bool use)
{
    mOurMaxWidth = use;
}

bool ZelQtComboBox::hasIcons() const
{
    for (int row = 0; row < count(); ++row) {
        if (!itemIcon(row).isNull())
            return true;
    }
    return false;
}

int ZelQtComboBox::absTextWidth() const
{
    int width = 0;
    for (int row = 0; row < count(); ++row)
        width = std::max(width, plainTextWidth(itemText(row)));
    return width;
}

int ZelQtComboBox::inputWidth() const
{
    if (mOurStdWidth)
        return standardWidth(this);
    if (mOurMaxWidth)
        return ::maximumWidth(this);
    return absTextWidth() + 4 * fontMetrics().averageCharWidth();
}

QSize ZelQtComboBox::sizeHint() const
{
    return {inputWidth(), standardHeight(this)};
}

QSize ZelQtComboBox::minimumSizeHint() const
{
    QSize size = QComboBox::minimumSizeHint();
    if (mOurMinWidth)
        size.setWidth(standardWidth(this));
    return size;
}

void ZelQtComboBox::showPopup()
{
    int width = absTextWidth() + 5 * fontMetrics().averageCharWidth();
    if (hasIcons())
        width += iconSize().width();
    view()->setMinimumWidth(width);
    view()->viewport()->installEventFilter(this); // in front of Qt's own
    QComboBox::showPopup();
}

void ZelQtComboBox::disableValueChanged()
{
    disconnect(this, chosen, this, &ZelQtComboBox::emitValueChanged);
    disconnect(this, &QComboBox::editTextChanged, this, &ZelQtComboBox::emitValueChanged);
}

void ZelQtComboBox::disableValueConfirmed()
{
    disconnect(this, chosen, this, &ZelQtComboBox::emitValueConfirmed);
}

void ZelQtComboBox::emitValueChanged()
{
    tellValueChanged(this);
}

void ZelQtComboBox::emitValueConfirmed()
{
    tellValueConfirmed(this);
}

void ZelQtComboBox::updateStatusTip(const QString &text)
{
    setStatusTip(text);
}

void ZelQtComboBox::updateViewStatusTip(const QString &text)
{
    QStatusTipEvent tip(text);
    QApplication::sendEvent(this, &tip);
}

bool ZelQtComboBox::eventFilter(QObject *watched, QEvent *event)
{
    // Qt takes a click on a disabled entry for a choice of the current one, which would report an
    // edit where nothing was chosen.
    if (event->type() == QEvent::MouseButtonRelease && watched == view()->viewport()) {
        const QModelIndex index = view()->indexAt(static_cast<QMouseEvent *>(event)->pos());
        if (index.isValid() && !(index.flags() & Qt::ItemIsEnabled))
            return true;
    }
    return QComboBox::eventFilter(watched, event);
}

bool ZelQtComboBox::event(QEvent *event)
{
    // The line edit of an editable box claims keys here that it will never get, and the
    // application's actions would not fire.
    if (event->type() == QEvent::ShortcutOverride
        && isKeyOfParent(static_cast<QKeyEvent *>(event))) {
        event->ignore();
        return true;
    }
    return QComboBox::event(event);
}

void ZelQtComboBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateStrings();
    QComboBox::changeEvent(event);
}

void ZelQtComboBox::mousePressEvent(QMouseEvent *event)
{
    if (mIndexFixed)
        Q_EMIT changeOfFixedIndexAttempted();
    else
        QComboBox::mousePressEvent(event);
}

void ZelQtComboBox::keyPressEvent(QKeyEvent *event)
{
    // A fixed box takes keys all the same: only mouse and wheel are kept from it.
    if (isKeyOfParent(event))
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}

void ZelQtComboBox::wheelEvent(QWheelEvent *event)
{
    if (mIndexFixed) {
        event->ignore(); // the page may scroll
        return;
    }
    // Who scrolls a page must not change the lists that pass under the mouse.
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
    updateViewStatusTip(currentText());
}
