#include "mask.h"
#include "zelUITextLabel.h"

#include <QtTest>

namespace {

class Label : public ZelUITextLabel
{
public:
    using ZelUITextLabel::setup;
    using ZelUITextLabel::ZelUITextLabel;
    void setup(ZelUIVar *variable, AttrMap &attributes) override
    {
        ZelUITextLabel::setup(variable, attributes);
        ++mNamed;
    }
    void retranslate() override { ++mRetranslated; }
    int mNamed = 0;
    int mRetranslated = 0;
};

} // namespace

class tst_zelUITextLabel : public QObject
{
    Q_OBJECT
private slots:
    void keepsItsAlignment();
    void promptOfAVariable();
    void textOfANodeEndsInThePlainSetup();
    void textOfTheModuleRetranslatesWhenItChanged();
    void labelOfAPromptTakesNoValue();
};

void tst_zelUITextLabel::keepsItsAlignment()
{
    QVERIFY(ZelUITextLabel().getAlignment() == ZelUIAlignment::Left);
    QVERIFY(ZelUITextLabel(ZelUIAlignment::Right).getAlignment() == ZelUIAlignment::Right);
}

void tst_zelUITextLabel::promptOfAVariable()
{
    ZelUIVarString variable(L"note");
    variable.mText.setText(L"Notiz");
    AttrMap attributes;
    ZelUITextLabel label;
    label.setup(&variable, attributes);
    QCOMPARE(toText(label.getText()), QString("Notiz"));
    QCOMPARE(toText(label.getName()), QString("note"));
}

void tst_zelUITextLabel::textOfANodeEndsInThePlainSetup()
{
    ZelDomNode node(L"text");
    node.setAttribute(L"name", L"heading");
    node.setContent(L"Geometrie");
    Label label;
    label.setup(&node);
    QCOMPARE(label.mNamed, 1);
    QCOMPARE(toText(label.getText()), QString("Geometrie"));
    QCOMPARE(toText(label.getItemName()), QString("heading_label"));
}

void tst_zelUITextLabel::textOfTheModuleRetranslatesWhenItChanged()
{
    Meta meta;
    auto *remark = meta.add<ZelUIVarText>(L"remark");
    remark->mText.setText(L"Hinweis");
    AttrMap attributes;
    Label label;
    label.setup(remark, attributes, 0);
    label.setData(&meta, 0);
    QCOMPARE(label.mRetranslated, 0);
    QVERIFY(label.getText().empty());
    meta.setText(*remark, 0, L"Sicherheit zu klein", ZelOrigin::Module);
    label.setData(&meta, 0);
    label.setData(&meta, 0);
    QCOMPARE(label.mRetranslated, 1);
    QCOMPARE(toText(label.getText()), QString("Sicherheit zu klein"));
    label.setData(nullptr, 0);
    QCOMPARE(toText(label.getText()), QString("Sicherheit zu klein"));
}

void tst_zelUITextLabel::labelOfAPromptTakesNoValue()
{
    Meta meta;
    auto *variable = meta.add<ZelUIVarString>(L"note");
    variable->mText.setText(L"Notiz");
    meta.setText(*variable, 0, L"Wert", ZelOrigin::User);
    AttrMap attributes;
    Label label;
    static_cast<ZelUIObject &>(label).setup(variable, attributes);
    label.setData(&meta, 0);
    QCOMPARE(toText(label.getText()), QString("Notiz"));
    QCOMPARE(label.mRetranslated, 0);
}

QTEST_GUILESS_MAIN(tst_zelUITextLabel)
#include "tst_zelUITextLabel.moc"
