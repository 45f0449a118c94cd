#pragma once

#include "customwidgets_export.h"
#include "zelUIComboBox.h"

#include <QComboBox>

class ZelQtItemDelegate;

/// The list field of the library. Each entry carries an identifier as item data: an int for lists
/// of the model or of a table of the database, a qlonglong for dynamic lists. A choice is a whole
/// edit: changed and confirmed at once. A disabled element shows nothing.
///
/// With a fixed index the mouse and the wheel change nothing; the keyboard still does, and that is
/// meant: a fixed list can be looked through by arrow keys.
class CUSTOMWIDGETS_EXPORT ZelQtComboBox : public QComboBox, public ZelUIComboBox
{
    Q_OBJECT
    /// Database and table that an entry missing from the list is looked up in; empty by default.
    Q_PROPERTY(QString database READ database WRITE setDatabase)
    Q_PROPERTY(QString table READ table WRITE setTable)
    /// False by default.
    Q_PROPERTY(bool indexFixed READ isIndexFixed WRITE setIndexFixed)

public:
    using ZelUIComboBox::setup; // the overloads below would hide the inherited ones

    explicit ZelQtComboBox(QWidget *parent = nullptr);
    // Lists of a table; retranslate() fills them. The column of identifiers is "ID" unless given.
    ZelQtComboBox(const QString &database, const QString &table, QWidget *parent = nullptr);
    ZelQtComboBox(const zelWString &database, const zelWString &table, QWidget *parent = nullptr);
    ZelQtComboBox(const zelWString &database, const zelWString &table, const zelWString &idColumn,
                  QWidget *parent = nullptr);
    ZelQtComboBox(const QString &database, const QString &table, const std::set<short> &excluded,
                  QWidget *parent = nullptr);
    ZelQtComboBox(const zelWString &database, const zelWString &table,
                  const std::set<short> &excluded, QWidget *parent = nullptr);
    /// `key` narrows the rows of the table.
    ZelQtComboBox(const QString &database, const QString &table, uint64_t key,
                  const std::set<short> &excluded, QWidget *parent = nullptr);
    ZelQtComboBox(const zelWString &database, const zelWString &table, uint64_t key,
                  const std::set<short> &excluded, QWidget *parent = nullptr);
    ~ZelQtComboBox() override;

    QString database() const;
    void setDatabase(const QString &database);
    QString table() const;
    void setTable(const QString &table);
    bool isIndexFixed() const { return mIndexFixed; }

    /// Makes the entry with the identifier current. False when there is none: the first entry is
    /// current then with `fallback`, else no entry.
    bool setCurrentData(const QVariant &data, bool fallback);
    /// Adds the entry "not defined" with this identifier.
    void addUndefinedItem(int id);
    /// Greys the entries of mDisabledIDs and mDynamicDisabledIDs and makes the others selectable.
    /// An empty set leaves all as they are.
    void applyDisabledIDs() const;

    bool hasIcons() const;
    /// Width of the widest entry in the application's font, without tags; in pixels.
    int absTextWidth() const;
    /// Width of the size hint: standard width, else 50 average characters, else that of the
    /// entries.
    int inputWidth() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// The list is at least as wide as its entries.
    void showPopup() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    // ZelUIComboBox
    void setup(ZelUIVarRealFuncList *variable, AttrMap &attributes, int component) override;
    void setup(ZelUIVarRealList *variable, AttrMap &attributes, int component) override;
    void setup(ZelUIVarDBFuncList *variable, AttrMap &attributes, int component) override;
    void setup(ZelUIVarDBList *variable, AttrMap &attributes, int component) override;
    void setup(ZelUIVarFuncListDynamic *variable, AttrMap &attributes, int component) override;
    void setup(ZelUIVarFuncList *variable, AttrMap &attributes, int component) override;
    void setup(ZelUIVarList *variable, AttrMap &attributes, int component) override;
    void updateState(Meta *meta, int64_t id) override;
    /// An identifier that the list lacks is looked up in the database and added at the end; it
    /// stays until the next retranslate().
    void setData(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id, short key, short currentId) override;
    void getData(Meta *meta, int64_t id) override;
    void getData(short &currentId) override;
    /// Fills the list anew. The current entry comes back with the next setData.
    void retranslate() override;

public Q_SLOTS:
    /// Ignored while the box is disabled.
    void setIndexFixed(bool fixed);
    void setIndexNotFixed(bool notFixed);
    /// The least width is the standard width (the default) or that of Qt.
    void setOurMinWidth(bool use);
    /// Standard width instead of that of the entries; fixed size policy with `use`, else preferred.
    void setOurStdWidth(bool use);
    /// Width of 50 average characters; the standard width wins over it. The size policy stays.
    void setOurMaxWidth(bool use);
    /// From now on a choice is only confirmed, and typing in an editable box tells nothing. There
    /// is no way back.
    void disableValueChanged();
    /// A choice is no longer confirmed. There is no way back.
    void disableValueConfirmed();

Q_SIGNALS:
    /// The user chose an entry: first the one, then the other, each after the host's. Any change of
    /// the text of an editable box gives valueChanged() alone, be it the user's or a program's.
    void valueChanged();
    void valueConfirmed();
    /// The mouse was pressed on a fixed box.
    void changeOfFixedIndexAttempted();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private Q_SLOTS:
    void emitValueChanged();
    void emitValueConfirmed();
    void updateStatusTip(const QString &text);
    void updateViewStatusTip(const QString &text);

private:
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    template <class Variable>
    void setupList(Variable *variable, AttrMap &attributes, int component);
    void init();
    bool addFromDatabase(short id);
    void retranslateStrings();

    ZelQtItemDelegate *mDelegate = nullptr;
    bool mOurMinWidth = true;
    bool mOurStdWidth = false;
    bool mOurMaxWidth = false;
    bool mIndexFixed = false;
};
