#pragma once

#include "customwidgets_export.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class QRadioButton;
class QSpacerItem;
class ZelQtAdvancedLabel;
class ZelQtConvertButton;
class ZelQtDatabaseButton;
class ZelQtEditButton;
class ZelQtFormulaLabel;
class ZelQtInfoButton;
class ZelQtOfferButton;
class ZelQtPlusButton;
class ZelQtSettingsButton;
class ZelQtSizeButton;
class ZelQtUnitLabel;

/// Base of the lines of a hand-built mask: everything that belongs to one calculation variable but
/// the input fields, which the derived classes insert. It has no model base; the form fills and
/// reads it. The lines of one page are aligned with each other by checkSize and its companions,
/// which hosts run. Children are owned through the widget tree.
class CUSTOMWIDGETS_EXPORT ZelQtCalcVarInput : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString prompt READ prompt WRITE setPrompt)
    Q_PROPERTY(QString formula READ formula WRITE setFormula)
    Q_PROPERTY(QString defaultUnit READ defaultUnit WRITE setDefaultUnit)
    Q_PROPERTY(EditButtonType editButtonType READ editButtonType WRITE setEditButtonType)
    Q_PROPERTY(bool editButtonMode READ editButtonMode WRITE setEditButtonMode)
    Q_PROPERTY(bool sizeButton READ sizeButton WRITE showSizeButton)
    Q_PROPERTY(bool sizeButtonMode READ sizeButtonMode WRITE setSizeButtonMode)
    Q_PROPERTY(QString sizeButtonFunction READ sizeButtonFunction WRITE setSizeButtonFunction)
    Q_PROPERTY(bool convertButton READ convertButton WRITE showConvertButton)
    Q_PROPERTY(bool convertButtonMode READ convertButtonMode WRITE setConvertButtonMode)
    Q_PROPERTY(
        QString convertButtonFunction READ convertButtonFunction WRITE setConvertButtonFunction)
    Q_PROPERTY(bool plusButton READ plusButton WRITE showPlusButton)
    Q_PROPERTY(bool plusButtonMode READ plusButtonMode WRITE setPlusButtonMode)
    Q_PROPERTY(QString plusButtonFunction READ plusButtonFunction WRITE setPlusButtonFunction)
    Q_PROPERTY(bool databaseButton READ databaseButton WRITE showDatabaseButton)
    Q_PROPERTY(bool settingsButton READ settingsButton WRITE showSettingsButton)
    Q_PROPERTY(bool infoButton READ infoButton WRITE showInfoButton)
    Q_PROPERTY(QString infoFile READ infoFile WRITE setInfoFile)
    Q_PROPERTY(int infoId READ infoId WRITE setInfoId)
    Q_PROPERTY(bool offerButton READ offerButton WRITE showOfferButton)

public:
    /// The numbers of ZelUIEditButtonType; an enumeration of its own, so that forms know its names.
    enum EditButtonType { LABEL = 0, CHECKBOX = 1, RADIOBUTTON = 2, HIDDEN = 3 };
    Q_ENUM(EditButtonType)

    explicit ZelQtCalcVarInput(QWidget *parent = nullptr);
    ~ZelQtCalcVarInput() override;

    // What the derived classes give an answer to; the base has no field.

    /// Text of the unit that values are stored in; empty here.
    virtual QString defaultUnit();
    virtual void setDefaultUnit(const QString &unit);
    virtual bool isEditable() const;
    /// Sets the tool tips of the computing buttons by the prompt. Hosts call it at a change of
    /// language.
    virtual void retranslateStrings();
    /// Both cut what the line reports to hosts and listeners; there is no way back.
    virtual void disableValueChanged();
    virtual void disableValueConfirmed();

    // Prompt, formula and unit

    QString prompt() const;
    void setPrompt(const QString &text);
    QString formula() const;
    void setFormula(const QString &formula);
    QString currentUnit() const;
    /// Shows the value in another unit; the value stays.
    void setCurrentUnit(const QString &unit);
    /// In pixels, as the unit stands at the moment.
    int unitWidth() const;

    // The edit button

    EditButtonType editButtonType() const;
    /// HIDDEN gives the empty label page, like LABEL.
    void setEditButtonType(EditButtonType type);
    void enableEditButton(bool enable);
    /// True: checked means that the value is entered; false: that it is computed.
    bool editButtonMode() const { return mEditButtonMode; }
    void setEditButtonMode(bool mode);
    void setEditButtonToolTip(const QString &text);
    QRadioButton *radioButtonWidget() const;

    // The computing buttons. With its mode set a button is enabled exactly while the line is
    // editable; switching the mode off leaves its state. The function is a text for the
    // application.

    bool sizeButton() const;
    void showSizeButton(bool show);
    void enableSizeButton(bool enable);
    bool sizeButtonMode() const { return mSizeButtonMode; }
    void setSizeButtonMode(bool on);
    QString sizeButtonFunction() const { return mSizeButtonFunction; }
    void setSizeButtonFunction(const QString &function) { mSizeButtonFunction = function; }
    void setSizeButtonToolTip(const QString &text);
    void setSizeButtonStatusTip(const QString &text);
    void setSizeButtonAuthorItCode(int code);

    bool convertButton() const;
    void showConvertButton(bool show);
    void enableConvertButton(bool enable);
    bool convertButtonMode() const { return mConvertButtonMode; }
    void setConvertButtonMode(bool on);
    QString convertButtonFunction() const { return mConvertButtonFunction; }
    void setConvertButtonFunction(const QString &function) { mConvertButtonFunction = function; }
    void setConvertButtonToolTip(const QString &text);
    void setConvertButtonStatusTip(const QString &text);
    void setConvertButtonAuthorItCode(int code);

    bool plusButton() const;
    void showPlusButton(bool show);
    void enablePlusButton(bool enable);
    bool plusButtonMode() const { return mPlusButtonMode; }
    void setPlusButtonMode(bool on);
    QString plusButtonFunction() const { return mPlusButtonFunction; }
    void setPlusButtonFunction(const QString &function) { mPlusButtonFunction = function; }
    void setPlusButtonToolTip(const QString &text);
    void setPlusButtonStatusTip(const QString &text);
    void setPlusButtonAuthorItCode(int code);

    // The other buttons

    bool databaseButton() const;
    void showDatabaseButton(bool show);
    bool settingsButton() const;
    void showSettingsButton(bool show);
    bool infoButton() const;
    void showInfoButton(bool show);
    int infoId() const;
    void setInfoId(int id);
    QString infoFile() const;
    void setInfoFile(const QString &file);
    bool offerButton() const;
    void showOfferButton(bool show);

    /// A widget outside the line that counts toward the width of the button area; not owned.
    void setExternal(QWidget *external) { mExternal = external; }
    /// Width in pixels that edit button, small buttons and external widget want.
    int buttonAreaWidth() const;

    // Alignment and units of the lines of a page

    /// Each line below `parent` takes the default unit of its dimension in the current unit system,
    /// with `keepDefault` its own default unit.
    static void checkUnits(QWidget *parent, bool keepDefault);
    /// Aligns the lines that are direct children of `parent`; other children are groups of their
    /// own.
    static void checkSize(QWidget *parent);
    /// Aligns all lines below `parent`, at any depth, as one group.
    static void checkSizeGlobally(QWidget *parent);
    /// Aligns a list of lines, with `adjustPrompt` also their prompts.
    static void checkVBoxSize(const QList<ZelQtCalcVarInput *> &inputs, bool adjustPrompt);
    /// The same for lines under a header line that ends in another widget.
    static void checkVBoxSize(ZelQtCalcVarInput *header, QWidget *widget,
                              const QList<ZelQtCalcVarInput *> &inputs, bool adjustPrompt);

public Q_SLOTS:
    /// Opens the input or makes it read-only, and brings edit button and computing buttons into
    /// line. Reports nothing.
    void setEditable(bool editable);
    void setReadOnly(bool readOnly);

Q_SIGNALS:
    /// A field of the line changed by the user; editing may go on. After the host heard of it.
    void inputValueChanged();
    /// Editing of a field was committed. After the host heard of it.
    void inputValueConfirmed();
    /// The user clicked the edit button.
    void editButtonClicked(bool checked);
    void sizeButtonClicked();
    void convertButtonClicked();
    void databaseButtonClicked();
    void settingsButtonClicked();
    void plusButtonClicked();
    void offerButtonClicked();

protected Q_SLOTS:
    virtual void changeInputUnit(const QString &unit);
    virtual void setInputEditable(bool editable);
    void reactToToggle(bool checked);

protected:
    /// Natural width of the fields in pixels; 0 here.
    virtual int inputWidth() const;
    // Each gives a column of the line its common width; with 0 the column is hidden.
    virtual void adjustPromptWidth(int width);
    virtual void adjustFormulaWidth(int width);
    virtual void adjustInputWidth(int width);
    virtual void adjustUnitWidth(int width);
    virtual void adjustButtonAreaWidth(int width);

    /// What follows the input when the line becomes editable or read-only: computing buttons and,
    /// in silence, the check mark. One piece for all lines.
    void followEditable(bool editable);

    QHBoxLayout *mLayout;
    ZelQtAdvancedLabel *mPrompt;
    ZelQtFormulaLabel *mFormula;
    ZelQtUnitLabel *mUnit;
    ZelQtEditButton *mEditButton;
    QSpacerItem *mSpacer;
    ZelQtSizeButton *mSizeButton;
    ZelQtConvertButton *mConvertButton;
    ZelQtPlusButton *mPlusButton;
    ZelQtDatabaseButton *mDatabaseButton;
    ZelQtSettingsButton *mSettingsButton;
    ZelQtInfoButton *mInfoButton;
    ZelQtOfferButton *mOfferButton;
    QPointer<QWidget> mExternal;

private:
    friend class ZelQtLineAlignment;

    void makeChildren();
    void connectChildren();
    void enableComputingButtons(bool editable);
    QList<QWidget *> smallButtons() const;

    bool mEditButtonMode = true;
    bool mSizeButtonMode = false;
    bool mConvertButtonMode = false;
    bool mPlusButtonMode = false;
    QString mSizeButtonFunction;
    QString mConvertButtonFunction;
    QString mPlusButtonFunction;
};
