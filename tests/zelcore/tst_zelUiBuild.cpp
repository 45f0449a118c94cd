#include "mask.h"

#include <QtTest>

class tst_zelUiBuild : public QObject
{
    Q_OBJECT
private slots:
    void buildsNest();
    void faultsCarryFileAndPlace();
    void unknownVariableIsAFault();
};

void tst_zelUiBuild::buildsNest()
{
    Mask mask;
    QVERIFY(!ZelUiBuild::current());
    {
        ZelUiBuild outer(mask.mMeta, mask.mFactory, mask.mFaults, "a");
        QCOMPARE(ZelUiBuild::current(), &outer);
        {
            ZelUiBuild inner(mask.mMeta, mask.mFactory, mask.mFaults, "b");
            QCOMPARE(ZelUiBuild::current(), &inner);
        }
        QCOMPARE(ZelUiBuild::current(), &outer);
    }
    QVERIFY(!ZelUiBuild::current());
}

void tst_zelUiBuild::faultsCarryFileAndPlace()
{
    Mask mask;
    ZelUiBuild build(mask.mMeta, mask.mFactory, mask.mFaults, "bearing.xml");
    build.fault(ZelFaultCode::BadValue, {4, 52}, "wrong", "right");
    QCOMPARE(mask.mFaults.size(), size_t(1));
    QCOMPARE(mask.mFaults[0].toString(), std::string("bearing.xml:4:52: error: wrong (right)"));
}

void tst_zelUiBuild::unknownVariableIsAFault()
{
    Mask mask;
    ZelUIVar *d = mask.mMeta.add<ZelUIVarBool>(L"d");
    ZelUiBuild build(mask.mMeta, mask.mFactory, mask.mFaults, "");
    ZelDomNode node(L"var");
    QVERIFY(!build.variableOf(node));
    QVERIFY(mask.mFaults.empty());
    node.setAttribute(L"name", L"d");
    QCOMPARE(build.variableOf(node), d);
    node.setAttribute(L"name", L"e", {3, 7});
    QVERIFY(!build.variableOf(node));
    QCOMPARE(mask.faultPlaces(),
             QStringList(QString("%1 at 3:7").arg(int(ZelFaultCode::UnknownName))));
}

QTEST_GUILESS_MAIN(tst_zelUiBuild)
#include "tst_zelUiBuild.moc"
