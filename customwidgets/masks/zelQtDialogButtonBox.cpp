#include "zelQtDialogButtonBox.h"

#include "zelQtParentDialog.h"

#include <QEvent>
#include <QMenu>
#include <QMetaEnum>

ZelQtDialogButtonBox::ZelQtDialogButtonBox(QWidget *parent)
    : ZelQtDialogButtonBox(OK_CANCEL, parent)
{
}

ZelQtDialogButtonBox::ZelQtDialogButtonBox(Mode mode, QWidget *parent)
    : QDialogButtonBox(parent)
{
    initButtons();
    setMode(mode);
}

// Buttons outside the box have no parent that would delete them.
ZelQtDialogButtonBox::~ZelQtDialogButtonBox()
{
    for (QPushButton *button : mButtons) {
        removeButton(button);
        delete button;
    }
}

void ZelQtDialogButtonBox::initButtons()
{
    for (QPushButton *&button : mButtons)
        button = new QPushButton(this);
    retranslateStrings();

    using Signal = void (ZelQtDialogButtonBox::*)();
    const auto raise = [this](Own button, Signal signal) {
        connect(mButtons[button], &QPushButton::clicked, this, signal);
    };
    raise(Delete, &ZelQtDialogButtonBox::deleteClicked);
    raise(Graphic, &ZelQtDialogButtonBox::graphicClicked);
    raise(Report, &ZelQtDialogButtonBox::reportClicked);
    raise(Calc, &ZelQtDialogButtonBox::calculateClicked);
    raise(Edit, &ZelQtDialogButtonBox::editClicked);
    raise(Show, &ZelQtDialogButtonBox::showClicked);
    raise(Save, &ZelQtDialogButtonBox::saveClicked);
    raise(Open, &ZelQtDialogButtonBox::openClicked);
}

void ZelQtDialogButtonBox::retranslateStrings()
{
    mButtons[Accept]->setText(tr("Übernehmen"));
    mButtons[Delete]->setText(tr("Löschen"));
    mButtons[Delete]->setShortcut(Qt::Key_Delete); // a new text drops the shortcut
    mButtons[Graphic]->setText(tr("Grafik"));
    mButtons[Report]->setText(tr("Protokoll"));
    mButtons[Calc]->setText(tr("Berechnen"));
    mButtons[Edit]->setText(tr("Bearbeiten"));
    mButtons[Show]->setText(tr("Anzeigen"));
    mButtons[Save]->setText(tr("Speichern"));
    const bool restore = mButtons[Open]->objectName() == QLatin1String("restore");
    mButtons[Open]->setText(restore ? tr("Wiederherstellen") : tr("Öffnen"));
}

void ZelQtDialogButtonBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateStrings();
    QDialogButtonBox::changeEvent(event);
}

void ZelQtDialogButtonBox::makeDefault(QPushButton *button)
{
    button->setDefault(true);
    mUnshownDefault = button;
}

// A box that was built before it came into its dialog could not tell the dialog of its default
// button, and the dialog would take the first one in the order of the Tab key: Cancel, for example.
void ZelQtDialogButtonBox::showEvent(QShowEvent *event)
{
    if (mUnshownDefault && mUnshownDefault->isDefault()) {
        mUnshownDefault->setDefault(false);
        mUnshownDefault->setDefault(true);
    }
    mUnshownDefault = nullptr;
    QDialogButtonBox::showEvent(event);
}

ZelQtDialogButtonBox::Mode ZelQtDialogButtonBox::mode(const QString &name)
{
    // Not keyToValue(), which takes "ZelQtDialogButtonBox::CLOSE" too.
    const QMetaEnum modes = QMetaEnum::fromType<Mode>();
    for (int i = 0; i < modes.keyCount(); ++i) {
        if (name == QLatin1String(modes.key(i)))
            return static_cast<Mode>(modes.value(i));
    }
    return STANDARD;
}

void ZelQtDialogButtonBox::setupConnections(ZelQtParentDialog *dialog) const
{
    connect(this, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    connect(this, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    connect(this, &ZelQtDialogButtonBox::calculateClicked, dialog, &ZelQtParentDialog::calculate);
    connect(this, &ZelQtDialogButtonBox::reportClicked, dialog,
            &ZelQtParentDialog::createProtokoll);
    connect(dialog, &ZelQtParentDialog::valueChanged, this, &ZelQtDialogButtonBox::forbidAccept);
}

QMenu *ZelQtDialogButtonBox::addAcceptMenu()
{
    auto *menu = new QMenu;
    mButtons[Accept]->setMenu(menu);
    // A button does not own its menu. As the context of the connection the menu may also go first.
    connect(mButtons[Accept], &QObject::destroyed, menu, [menu] { delete menu; });
    return menu;
}

QPushButton *ZelQtDialogButtonBox::addActionButton()
{
    // Not translated: the text is meant for the developer who forgets to set one.
    return addButton(QStringLiteral("add text to zelui"), ActionRole);
}

QPushButton *ZelQtDialogButtonBox::acceptButton() const
{
    QPushButton *ok = button(Ok);
    return ok ? ok : mButtons[Accept];
}

// By the mode: a report button that was added by setReportVisible() permits nothing, and that is
// meant.
bool ZelQtDialogButtonBox::isReportPermitted() const
{
    switch (mMode) {
    case CALC_REP_DEL_OK_CANCEL:
    case CALC_REP_OK_CANCEL:
    case CALC_REP_CLOSE:
    case CALC_REP_SAVE_CLOSE:
    case ACCEPT_CALC_REP_SAVE_CLOSE:
        return mButtons[Report]->isEnabled();
    default:
        return false;
    }
}

void ZelQtDialogButtonBox::permitAccept()
{
    setPermitted(true);
}

void ZelQtDialogButtonBox::forbidAccept()
{
    setPermitted(false);
}

// Buttons outside the box too: they are greyed for later.
void ZelQtDialogButtonBox::setPermitted(bool permitted)
{
    for (Own button : {Accept, Delete, Graphic, Report, Save})
        mButtons[button]->setEnabled(permitted);
}

void ZelQtDialogButtonBox::useCloseInsteadOfOKCancel()
{
    setStandardButtons(Close);
    makeDefault(button(Close));
}

void ZelQtDialogButtonBox::setAcceptEnabled(bool enabled)
{
    mButtons[Accept]->setEnabled(enabled);
}

void ZelQtDialogButtonBox::setDeleteVisible()
{
    showOwnButton(Delete, false);
}

void ZelQtDialogButtonBox::setDeleteEnabled(bool enabled)
{
    mButtons[Delete]->setEnabled(enabled);
}

void ZelQtDialogButtonBox::setGraphicVisible()
{
    showOwnButton(Graphic, false);
}

void ZelQtDialogButtonBox::setGraphicEnabled(bool enabled)
{
    mButtons[Graphic]->setEnabled(enabled);
}

void ZelQtDialogButtonBox::setReportVisible()
{
    showOwnButton(Report, false);
}

void ZelQtDialogButtonBox::setReportEnabled(bool enabled)
{
    mButtons[Report]->setEnabled(enabled);
}

void ZelQtDialogButtonBox::setEditEnabled(bool enabled)
{
    mButtons[Edit]->setEnabled(enabled);
}

void ZelQtDialogButtonBox::setShowEnabled(bool enabled)
{
    mButtons[Show]->setEnabled(enabled);
}

void ZelQtDialogButtonBox::setSaveVisible()
{
    showOwnButton(Save, false);
}

void ZelQtDialogButtonBox::setSaveEnabled(bool enabled)
{
    mButtons[Save]->setEnabled(enabled);
}

void ZelQtDialogButtonBox::setOpenVisible(bool restore)
{
    showOwnButton(Open, true);
    if (restore) {
        // The name tells changeEvent() which of the two texts is meant.
        mButtons[Open]->setObjectName(QStringLiteral("restore"));
        mButtons[Open]->setText(tr("Wiederherstellen"));
    }
}

void ZelQtDialogButtonBox::setCalcVisible(bool skipAccept)
{
    addButton(mButtons[Calc], ActionRole);
    mButtons[Calc]->show();
    if (QPushButton *ok = button(Ok)) {
        removeButton(ok);
        ok->deleteLater(); // this may run in its own click
    }
    if (!skipAccept) {
        showOwnButton(Accept, false);
        makeDefault(mButtons[Accept]);
    }
}

void ZelQtDialogButtonBox::setCalcEnabled(bool enabled)
{
    mButtons[Calc]->setEnabled(enabled);
}
