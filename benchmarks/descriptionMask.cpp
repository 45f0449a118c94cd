#include "descriptionMask.h"

#include "zelQtValueEdit.h"
#include "zelUITabPage.h"

#include <QVBoxLayout>

std::unique_ptr<ZelLoadedModule> DescriptionMask::makeModule(int lines)
{
    QString variables;
    QString page;
    for (int line = 0; line < lines; ++line) {
        variables += QStringLiteral("<real name=\"v%1\" text=\"Durchmesser %1\" formula=\"d_%1\" "
                                    "unit=\"mm\" bottom=\"0\" top=\"1e6\"/>")
                         .arg(line);
        page += QStringLiteral("<var name=\"v%1\" buttons=\"info\"/>").arg(line);
    }
    const QString text = QStringLiteral("<module id=\"bench\"><variables>%1</variables><page "
                                        "name=\"p\"><board><column>%2</column></board></page>"
                                        "</module>")
                             .arg(variables, page);
    ZelFaultList faults;
    const ZelModuleRegistry registry;
    auto module = zelLoadModule(ZelDescription::fromText(text.toStdString(), "bench.xml", faults),
                                registry, faults);
    if (!faults.empty())
        qFatal("%s", zelFaultReport(faults).c_str());
    return module;
}

DescriptionMask::DescriptionMask(ZelLoadedModule &module, QWidget *parent)
    : ZelQtParentWidget(parent)
{
    ZelFaultList faults;
    mMask = std::make_unique<ZelMask>(module, mFactory, faults);
    mFactory.discardUnused();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(dynamic_cast<QWidget *>(mMask->pages().front()));
}

DescriptionMask::~DescriptionMask() = default;

void DescriptionMask::setValues(const QVector<double> &values)
{
    Meta &meta = mMask->meta();
    const auto &variables = meta.variables();
    for (int line = 0; line < values.size(); ++line)
        meta.setReal(*variables[size_t(line)], 0, 0, values.at(line), ZelOrigin::Module);
    mMask->refresh();
}

ZelQtValueEdit *DescriptionMask::field(int line) const
{
    return findChild<ZelQtValueEdit *>(QStringLiteral("v%1").arg(line));
}
