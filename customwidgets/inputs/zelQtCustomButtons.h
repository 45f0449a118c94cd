#pragma once

#include "customwidgets_export.h"
#include "zelQtPushButton.h"
#include "zelUIPushButton.h"

#include <QPointer>
#include <QToolButton>

class ZelQtParentWidget;

/// Base of the small icon buttons at the end of a mask line, one class for each role. Its icon is
/// given or comes from the model; what a click does is left to the owner.
class CUSTOMWIDGETS_EXPORT ZelQtToolButton : public QToolButton, public ZelUIPushButton
{
    Q_OBJECT

public:
    using ZelUIPushButton::setup; // the overloads below would hide the inherited ones

    explicit ZelQtToolButton(QWidget *parent = nullptr);
    explicit ZelQtToolButton(const QString &iconFile, QWidget *parent = nullptr);
    ~ZelQtToolButton() override;

    /// A square as high as a one-line widget for a pure icon button, else that of QToolButton.
    QSize sizeHint() const override;

    // ZelUIPushButton
    /// The forms for a node and for a button variable end here too.
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    void setup(ZelUIVarLubList *variable, AttrMap &attributes, bool first, bool second) override;
    void setup(ZelUIVarTable *variable, AttrMap &attributes, ZelUIButtonData *data) override;
    void updateState(Meta *meta, int64_t id) override;
    void updateState(ZelUIState state) override;
    void updateState(bool enabled, bool visible) override;
    /// Tool tip and status tip of the model, empty ones too.
    void retranslate() override;
    /// Sets the icon. The result is false in every case.
    bool addIconFile(const zelWString &file) override;

public Q_SLOTS:
    /// Tool tip made from the name of the quantity that the button belongs to. Roles without such a
    /// form take it as it stands.
    virtual void setToolTipAdvanced(const QString &text);

protected:
    /// Sets the fixed texts of a role; none here. At a change of the language the texts of the
    /// model come after them.
    virtual void retranslateStrings();
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    bool mIsSetUp = false;
};

/// Sizes a value by a design method: "%1 auslegen".
class CUSTOMWIDGETS_EXPORT ZelQtSizeButton : public ZelQtToolButton
{
    Q_OBJECT

public:
    explicit ZelQtSizeButton(QWidget *parent = nullptr);
    ~ZelQtSizeButton() override;

public Q_SLOTS:
    void setToolTipAdvanced(const QString &text) override;

protected:
    void retranslateStrings() override;
};

/// Computes a value from others by conversion: "%1 umrechnen".
class CUSTOMWIDGETS_EXPORT ZelQtConvertButton : public ZelQtToolButton
{
    Q_OBJECT

public:
    explicit ZelQtConvertButton(QWidget *parent = nullptr);
    ~ZelQtConvertButton() override;

public Q_SLOTS:
    void setToolTipAdvanced(const QString &text) override;

protected:
    void retranslateStrings() override;
};

/// Opens a dialog with additional data. Its tool tip is setToolTipAdvanced() as it stands.
class CUSTOMWIDGETS_EXPORT ZelQtPlusButton : public ZelQtToolButton
{
    Q_OBJECT

public:
    explicit ZelQtPlusButton(QWidget *parent = nullptr);
    ~ZelQtPlusButton() override;

protected:
    void retranslateStrings() override;
};

/// Asks for an info topic, given by number or by file. With several of them the current index picks
/// one; numbers have priority over files. The request goes to the nearest host above the tab page,
/// and only without a host the button raises a signal of its own.
class CUSTOMWIDGETS_EXPORT ZelQtInfoButton : public ZelQtToolButton
{
    Q_OBJECT
    Q_PROPERTY(int infoId READ currentInfoId)
    Q_PROPERTY(QString infoFile READ currentInfoFile WRITE setInfoFile)

public:
    using ZelUIPushButton::setInfoFile; // beside the form that the property needs

    explicit ZelQtInfoButton(QWidget *parent = nullptr);
    explicit ZelQtInfoButton(int id, QWidget *parent = nullptr);
    explicit ZelQtInfoButton(const QString &file, QWidget *parent = nullptr);
    explicit ZelQtInfoButton(const QList<int> &ids, QWidget *parent = nullptr);
    explicit ZelQtInfoButton(const QList<QString> &files, QWidget *parent = nullptr);
    ~ZelQtInfoButton() override;

    QString currentInfoFile() const;
    void setInfoFile(const QString &file);

public Q_SLOTS:
    /// Taken as it stands: the caller keeps it inside the list.
    void setCurrentIndex(int index);

Q_SIGNALS:
    /// For the application; the library never raises it.
    void infoRequested();
    /// A click without host.
    void infoChanged(int id);
    void infoChanged(QString file);

protected:
    void retranslateStrings() override;

private Q_SLOTS:
    void emitInfoSignal();
};

/// Asks for an offer for a tool.
class CUSTOMWIDGETS_EXPORT ZelQtOfferButton : public ZelQtToolButton
{
    Q_OBJECT

public:
    explicit ZelQtOfferButton(QWidget *parent = nullptr);
    ~ZelQtOfferButton() override;

protected:
    void retranslateStrings() override;
};

/// Edits an entry in the database.
class CUSTOMWIDGETS_EXPORT ZelQtDatabaseButton : public ZelQtToolButton
{
    Q_OBJECT

public:
    explicit ZelQtDatabaseButton(QWidget *parent = nullptr);
    ~ZelQtDatabaseButton() override;

protected:
    void retranslateStrings() override;
};

/// Shows the settings of a value in a dialog: "Spezifische Einstellungen für %1", without "für" for
/// an empty text.
class CUSTOMWIDGETS_EXPORT ZelQtSettingsButton : public ZelQtToolButton
{
    Q_OBJECT

public:
    explicit ZelQtSettingsButton(QWidget *parent = nullptr);
    ~ZelQtSettingsButton() override;

public Q_SLOTS:
    void setToolTipAdvanced(const QString &text) override;

protected:
    void retranslateStrings() override;
};

/// Chooses a file. It has no texts of its own.
class CUSTOMWIDGETS_EXPORT ZelQtFileButton : public ZelQtToolButton
{
    Q_OBJECT

public:
    explicit ZelQtFileButton(QWidget *parent = nullptr);
    ~ZelQtFileButton() override;
};

/// Carries a page, which its owner opens at clicked().
class CUSTOMWIDGETS_EXPORT ZelQtLinkButton : public ZelQtToolButton
{
    Q_OBJECT

public:
    ZelQtLinkButton(const QString &iconFile, ZelQtParentWidget *link, QWidget *parent = nullptr);
    ~ZelQtLinkButton() override;

    /// Not owned; null once the page is gone.
    ZelQtParentWidget *link() const;

private:
    QPointer<ZelQtParentWidget> mLink;
};

/// A square push button with an icon, as high as a one-line widget. Tab passes over it.
class CUSTOMWIDGETS_EXPORT ZelQtIconButton : public ZelQtPushButton
{
    Q_OBJECT

public:
    explicit ZelQtIconButton(QWidget *parent = nullptr);
    explicit ZelQtIconButton(const QString &iconFile, QWidget *parent = nullptr);
    explicit ZelQtIconButton(const QIcon &icon, QWidget *parent = nullptr);
    ~ZelQtIconButton() override;

    QSize sizeHint() const override;

public Q_SLOTS:
    virtual void setToolTipAdvanced(const QString &text);

protected:
    /// Sets the fixed texts of a subclass; none here. Unlike a tool button's, the texts of the
    /// model don't come after them.
    virtual void retranslateStrings();
    void changeEvent(QEvent *event) override;
};

/// A button that ends a dialog with a result number: connect clicked() to
/// acceptTarvexResultButton() of the dialog.
class CUSTOMWIDGETS_EXPORT ZelQtTarvexResultButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ZelQtTarvexResultButton(int result, QWidget *parent = nullptr);
    ZelQtTarvexResultButton(int result, const QString &text, QWidget *parent = nullptr);
    ZelQtTarvexResultButton(int result, const QIcon &icon, const QString &text,
                            QWidget *parent = nullptr);
    ~ZelQtTarvexResultButton() override;

    int tarvexResult() const { return mTarvexResult; }

private:
    int mTarvexResult;
};
