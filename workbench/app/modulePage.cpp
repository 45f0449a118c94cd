#include "modulePage.h"

#include "calculationDialog.h"
#include "faultBox.h"
#include "maskView.h"
#include "messagePanel.h"
#include "zelQtConversions.h"
#include "zelQtMessageBox.h"
#include "zelTextForm.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>
#include <QVBoxLayout>

ModulePage::ModulePage(std::unique_ptr<ZelLoadedModule> module, const ZelModuleRegistry &registry,
                       ZelFaultList &faults, QWidget *parent)
    : ZelQtParentWidget(parent)
    , mModule(std::move(module))
    , mRegistry(registry)
    , mMask(new MaskView(*mModule, faults, this))
    , mMessages(new MessagePanel(this))
{
    setObjectName(toQString(mModule->mDescription.moduleId()));
    if (const ZelDomNode *root = mModule->mDescription.root())
        setAuthorItCode(root->hasAttribute(L"help") ? root->attribute(L"help").toInt() : -1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(mMask, 1);
    layout->addWidget(mMessages);
    mMessages->hide();

    connect(mMask, &MaskView::valueChanged, this, &ModulePage::changed);
    connect(mMask, &MaskView::valueChanged, this, &ZelQtParentWidget::emitValueChanged);
    connect(mMask, &MaskView::valueConfirmed, this, &ZelQtParentWidget::emitValueConfirmed);
    connect(mMask, qOverload<int>(&MaskView::infoChanged), this,
            qOverload<int>(&ZelQtParentWidget::emitInfoChanged));
    connect(mMask, qOverload<QString>(&MaskView::infoChanged), this,
            qOverload<QString>(&ZelQtParentWidget::emitInfoChanged));
    connect(mMessages, &MessagePanel::variableRequested, mMask, &MaskView::focusVariable);
}

ModulePage::~ModulePage()
{
    // The mask reads the module, which goes first otherwise.
    delete mMask;
}

QString ModulePage::title() const
{
    ZelUITextHandler text;
    text.setup(mModule->mDescription.root());
    return text.empty() ? objectName() : toQString(text.getText());
}

QStringList ModulePage::examples() const
{
    const QFileInfo description(QString::fromStdString(mModule->mDescription.fileName()));
    const QDir folder(description.absoluteDir().filePath(QStringLiteral("examples")));
    QStringList files;
    const QStringList names =
        folder.entryList({QStringLiteral("*.values")}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        files.append(folder.filePath(name));
    return files;
}

void ModulePage::setConsistent(bool consistent)
{
    if (mConsistent == consistent)
        return;
    mConsistent = consistent;
    Q_EMIT consistencyChanged();
}

void ModulePage::changed()
{
    mModified = true;
    setConsistent(false);
}

bool ModulePage::loadValues(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        ZelQtMessageBox::fileNotFoundError(file, this);
        return false;
    }
    const QByteArray bytes = source.readAll();
    ZelFaultList faults;
    zelReadValues(mModule->meta(), std::string_view(bytes.constData(), size_t(bytes.size())),
                  file.toStdString(), faults);
    mMask->refresh();
    mModified = false;
    setConsistent(false);
    showFaults(faults, this);
    return faults.empty();
}

bool ModulePage::saveValues(const QString &file)
{
    // Beside the file and renamed: a full disk leaves the old one as it was.
    QSaveFile target(file);
    const std::string text = zelWriteValues(mModule->meta(), false);
    const bool saved = target.open(QIODevice::WriteOnly)
        && target.write(text.data(), qint64(text.size())) == qint64(text.size()) && target.commit();
    if (!saved) {
        ZelQtMessageBox::savingFailedError(file, this);
        return false;
    }
    mModified = false;
    return true;
}

bool ModulePage::mayClose()
{
    if (!mModified)
        return true;
    const QString file = title() + QStringLiteral(".values");
    switch (ZelQtMessageBox::saveChangesInFileQuestion(file, this)) {
    case QMessageBox::Yes: {
        const QString chosen =
            QFileDialog::getSaveFileName(this, QString(), file, tr("Werte (*.values)"));
        return !chosen.isEmpty() && saveValues(chosen);
    }
    case QMessageBox::No:
        return true;
    default:
        return false;
    }
}

void ModulePage::calculate()
{
    mResult = mMask->calculate();
    mMessages->showMessages(mResult.mMessages);
    mCalculated = true;
    mConsistent = mResult.mSucceeded;
    Q_EMIT consistencyChanged();
}

void ModulePage::calculateInDialog()
{
    CalculationDialog dialog(mModule->mDescription.fileName(), mRegistry, window());
    dialog.setWindowTitle(title());
    dialog.setValues(zelWriteValues(mModule->meta(), false));
    if (dialog.exec() != QDialog::Accepted)
        return;
    ZelFaultList faults;
    const std::string values = dialog.values();
    zelReadValues(mModule->meta(), values, mModule->mDescription.fileName(), faults,
                  ZelOrigin::User);
    mModified = true;
    mMask->refresh();
    calculate();
}

void ModulePage::updateUnitSystem(bool keepDefault)
{
    mMask->updateUnitSystem(keepDefault);
    ZelQtParentWidget::updateUnitSystem(keepDefault);
    mMessages->showMessages(mResult.mMessages);
}

void ModulePage::retranslateStrings()
{
    ZelQtParentWidget::retranslateStrings();
    mMask->retranslate();
    mMessages->showMessages(mResult.mMessages);
}
