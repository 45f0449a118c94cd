#pragma once

#include "customwidgets_export.h"
#include "zelUIGroup.h"

#include <QGroupBox>

class QVBoxLayout;

/// A titled group of columns, with a head above and a foot below them. It can be checkable in a
/// hand-made form: a click is then a change and a confirmation at once, each to the host first.
class CUSTOMWIDGETS_EXPORT ZelQtGroupBox : public QGroupBox, public ZelUIGroup
{
    Q_OBJECT

public:
    using ZelUIGroup::makeLayout; // the form that takes the flag from the node
    using ZelUIGroup::setup; // the override below would hide the inherited ones

    explicit ZelQtGroupBox(QWidget *parent = nullptr);
    explicit ZelQtGroupBox(const QString &title, QWidget *parent = nullptr);
    ~ZelQtGroupBox() override;

    // ZelUIGroup
    void setup(const ZelDomNode *node) override;
    /// Follows visible only: enabled and read-only reach the members.
    void updateState(Meta *meta, int64_t id) override;
    /// With `pack` the content keeps its natural width and stands left. Without columns the head
    /// fills the group alone.
    void makeLayout(bool pack) override;
    void retranslate() override;

Q_SIGNALS:
    /// By a click of the user, after the host's signal of the same name.
    void valueChanged();
    /// Straight after valueChanged().
    void valueConfirmed();

public Q_SLOTS:
    /// A click confirms without a change from now on; there is no way back.
    void disableValueChanged();

private Q_SLOTS:
    void emitValueChanged();
    void emitValueConfirmed();

protected:
    void changeEvent(QEvent *event) override;

private:
    void init();
    void takeInactiveText();
    void followPalette();
};
