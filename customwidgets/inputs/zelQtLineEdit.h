#pragma once

#include "customwidgets_export.h"

#include <QLineEdit>

/// A line of text that tells a change under way, valueChanged(), from one that is finished,
/// valueConfirmed(). Base of all fields for numbers, texts and files. Its own undo is out of reach
/// by keyboard: Ctrl+Z and Ctrl+Y go to the application. A listener may delete a field that is told
/// to confirm or that confirms by Return; while the user types or leaves it, Qt goes on with the
/// field behind the signal, so that only deleteLater() will do.
class CUSTOMWIDGETS_EXPORT ZelQtLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable)

public:
    explicit ZelQtLineEdit(QWidget *parent = nullptr);
    explicit ZelQtLineEdit(const QString &text, QWidget *parent = nullptr);
    ~ZelQtLineEdit() override;

    bool isEditable() const { return !isReadOnly(); }
    void setEditable(bool editable) { setReadOnly(!editable); }
    bool isActive() const { return isEnabled(); }
    /// An inactive field is empty, and stays empty when it becomes active again.
    void setActive(bool active);

    /// The standard width of a field, fixed.
    void setOurStdWidth(bool use);
    /// A width of 50 average characters; has precedence over the standard width and leaves the size
    /// policy alone.
    void setOurMaxWidth(bool use);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user changed the text, editing may go on. Comes with every keystroke, after the signal
    /// of the host; never for a change by the program.
    void valueChanged();
    /// The user left the field or pressed Return after a change; after the signal of the host.
    void valueConfirmed();

public Q_SLOTS:
    // There is no way back from the first two.
    /// Changes are only noted from now on, and reported when they are confirmed.
    void disableValueChanged();
    /// Leaving the field confirms nothing from now on; ensureValueConfirmed() still does.
    void disableValueConfirmed();
    /// Confirms a pending change at once.
    void ensureValueConfirmed();

protected Q_SLOTS:
    void needsToBeConfirmed();
    void emitValueChanged();
    void emitValueConfirmed();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void init();

    bool mNeedsConfirm = false;
    bool mOurStdWidth = false;
    bool mOurMaxWidth = false;
};
