#pragma once

#include "zelMask.h"
#include "zelQtParentWidget.h"
#include "zelQtUiFactory.h"

#include <QVector>

class ZelQtValueEdit;

/// A mask of as many lines as PlainMask, built from a description by the library, in a host.
class DescriptionMask : public ZelQtParentWidget
{
    Q_OBJECT

public:
    /// `module` outlives the mask.
    explicit DescriptionMask(ZelLoadedModule &module, QWidget *parent = nullptr);
    ~DescriptionMask() override;

    /// A description of that many lines, read once and not part of what is measured.
    static std::unique_ptr<ZelLoadedModule> makeModule(int lines);

    void setValues(const QVector<double> &values);
    ZelQtValueEdit *field(int line) const;
    ZelMask &mask() { return *mMask; }

private:
    ZelQtUiFactory mFactory;
    std::unique_ptr<ZelMask> mMask;
};
