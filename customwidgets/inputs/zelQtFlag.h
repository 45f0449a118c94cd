#pragma once

#include "customwidgets_export.h"
#include "zelUIFlag.h"

#include <QCheckBox>

/// The check box of a mask, bound to a yes/no variable. While the element is disabled it shows
/// neither text nor check mark. One click is a whole edit; an update-blocking variable changes
/// nothing in that.
class CUSTOMWIDGETS_EXPORT ZelQtFlag : public QCheckBox, public ZelUIFlag
{
    Q_OBJECT

public:
    using ZelUIFlag::setup; // the overloads below would hide the inherited ones

    explicit ZelQtFlag(QWidget *parent = nullptr);
    ~ZelQtFlag() override;

    QSize sizeHint() const override;

    // ZelUIFlag
    /// The form for a table ends here too.
    void setup(ZelUIVar *variable, AttrMap &attributes) override;
    void setup(ZelUIVarBool *variable, AttrMap &attributes) override;
    void updateState(Meta *meta, int64_t id) override;
    void setData(Meta *meta, int64_t id) override;
    void getData(Meta *meta, int64_t id) override;
    void retranslate() override;

public Q_SLOTS:
    /// From now on a click is only confirmed. There is no way back.
    void disableValueChanged();

Q_SIGNALS:
    /// The user clicked: first the one, then the other, each after the host's. Silent when a
    /// program checks it.
    void valueChanged();
    void valueConfirmed();

private Q_SLOTS:
    void emitValueChanged();
    void emitValueConfirmed();
};
