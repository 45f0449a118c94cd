#include "zelDimensions.h"

#include <QtTest>
#include <dlfcn.h>

// The library of units stands alone, and the one above it links the units to the user's settings
// while it is loaded. This test is built without that library and loads it itself.
class tst_unitSystemLink : public QObject
{
    Q_OBJECT
private slots:
    void unitsAloneAreMetric();
    void loadedLibraryLinksUnitsAndSettings();
};

static bool isMetric()
{
    return ZelDimensions::defaultUnit(ZelDimensions::Inch, true) == ZelDimensions::Millimetre;
}

void tst_unitSystemLink::unitsAloneAreMetric()
{
    QVERIFY(!dlopen(ZELCORE_FILE, RTLD_NOW | RTLD_NOLOAD));
    QVERIFY(isMetric());
}

void tst_unitSystemLink::loadedLibraryLinksUnitsAndSettings()
{
    void *library = dlopen(ZELCORE_FILE, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(library, dlerror());
    // TarvexModule::Setup, a pointer to settings whose first byte is the flag
    auto *setup = static_cast<unsigned char **>(dlsym(library, "_ZN12TarvexModule5SetupE"));
    QVERIFY(setup);
    QVERIFY(!*setup);
    QVERIFY(isMetric());
    unsigned char usCustomary = 1;
    *setup = &usCustomary;
    QVERIFY(!isMetric());
    usCustomary = 0;
    QVERIFY(isMetric());

    usCustomary = 1;
    QCOMPARE(dlclose(library), 0);
    if (dlopen(ZELCORE_FILE, RTLD_NOW | RTLD_NOLOAD)) {
        *setup = nullptr;
        QSKIP("the loader keeps the library");
    }
    QVERIFY(isMetric());
}

QTEST_APPLESS_MAIN(tst_unitSystemLink)
#include "tst_unitSystemLink.moc"
