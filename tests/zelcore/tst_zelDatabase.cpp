#include "zelDatabase.h"

#include <QtTest>

// Reading by names and numbers through whatever provider a process has.
class tst_zelDatabase : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void nothingIsFoundWithoutProvider();
    void missingFunctionsOfAProviderFindNothing();
    void nameOfARowIsWrittenWithItsTerminator();
    void unknownRowLeavesTheBufferAlone();
    void nameIsCutToTheBuffer();
    void namesOfDatabaseAndTableAreLatin1();
    void rowsComeInTheOrderOfTheProvider();
    void keyAndColumnReachTheProvider();
    void mapHoldsTheRowsById();
    void materialsAreAskedByType();
};

void tst_zelDatabase::cleanup()
{
    zelSetDatabaseProvider({});
}

void tst_zelDatabase::nothingIsFoundWithoutProvider()
{
    long id = 1;
    long unused = 0;
    wchar_t name[1024] = L"before";
    QCOMPARE(GetDBName("db", "bearing", 0, id, unused, name), 0);
    QCOMPARE(std::wstring(name), std::wstring(L"before"));
    QVERIFY(zelDatabaseRows(L"db", L"bearing", L"ID").empty());
    QVERIFY(DBreadmap(L"db", L"bearing", L"ID").empty());
    QVERIFY(DBreadmatlist(L"material", 1).empty());
}

void tst_zelDatabase::missingFunctionsOfAProviderFindNothing()
{
    zelSetDatabaseProvider(ZelDatabaseProvider());
    nothingIsFoundWithoutProvider();
}

static ZelDatabaseProvider namesOf(const zelWString &name)
{
    ZelDatabaseProvider provider;
    provider.mName = [name](const zelWString &, const zelWString &,
                            long id) -> std::optional<zelWString> {
        return id == 7 ? std::optional(name) : std::nullopt;
    };
    return provider;
}

void tst_zelDatabase::nameOfARowIsWrittenWithItsTerminator()
{
    zelSetDatabaseProvider(namesOf(L"6205 \u00d8"));
    long id = 7;
    long unused = 0;
    wchar_t name[1024];
    std::fill(std::begin(name), std::end(name), L'x');
    QVERIFY(GetDBName("db", "bearing", 0, id, unused, name) != 0);
    QCOMPARE(std::wstring(name), std::wstring(L"6205 \u00d8"));
    QCOMPARE(id, 7L);
}

void tst_zelDatabase::unknownRowLeavesTheBufferAlone()
{
    zelSetDatabaseProvider(namesOf(L"6205"));
    long id = 8;
    long unused = 0;
    wchar_t name[1024] = L"before";
    QCOMPARE(GetDBName("db", "bearing", 0, id, unused, name), 0);
    QCOMPARE(std::wstring(name), std::wstring(L"before"));
}

void tst_zelDatabase::nameIsCutToTheBuffer()
{
    zelSetDatabaseProvider(namesOf(std::wstring(5000, L'n')));
    long id = 7;
    long unused = 0;
    wchar_t name[1025];
    name[1024] = L'#';
    QVERIFY(GetDBName("db", "bearing", 0, id, unused, name) != 0);
    QCOMPARE(std::wstring(name), std::wstring(1023, L'n'));
    QCOMPARE(name[1024], L'#');
}

void tst_zelDatabase::namesOfDatabaseAndTableAreLatin1()
{
    std::wstring asked;
    ZelDatabaseProvider provider;
    provider.mName = [&asked](const zelWString &database, const zelWString &table, long) {
        asked = std::wstring(database) + L"/" + std::wstring(table);
        return std::optional<zelWString>();
    };
    zelSetDatabaseProvider(provider);
    long id = 1;
    long unused = 0;
    wchar_t name[1024];
    GetDBName("Stoffe", "W\xe4lzlager", 0, id, unused, name);
    QCOMPARE(asked, std::wstring(L"Stoffe/W\u00e4lzlager"));
    GetDBName(nullptr, nullptr, 0, id, unused, name);
    QCOMPARE(asked, std::wstring(L"/"));
}

static ZelDatabaseProvider threeRows(std::wstring *asked = nullptr)
{
    ZelDatabaseProvider provider;
    provider.mRows = [asked](const zelWString &database, const zelWString &table,
                             const zelWString &idColumn, uint64_t key) {
        if (asked) {
            *asked = std::wstring(database) + L"/" + std::wstring(table) + L"/"
                + std::wstring(idColumn) + L"/" + std::to_wstring(key);
        }
        return ZelDatabaseProvider::Rows{{L"6303", 30}, {L"6205", 10}, {L"6206", 20}};
    };
    return provider;
}

void tst_zelDatabase::rowsComeInTheOrderOfTheProvider()
{
    zelSetDatabaseProvider(threeRows());
    const auto rows = zelDatabaseRows(L"db", L"bearing", L"ID");
    QCOMPARE(rows.size(), size_t(3));
    QVERIFY(rows[0].first == L"6303");
    QCOMPARE(rows[0].second, short(30));
    QVERIFY(rows[2].first == L"6206");
}

void tst_zelDatabase::keyAndColumnReachTheProvider()
{
    std::wstring asked;
    zelSetDatabaseProvider(threeRows(&asked));
    zelDatabaseRows(L"db", L"bearing", L"NR", 5);
    QCOMPARE(asked, std::wstring(L"db/bearing/NR/5"));
    zelDatabaseRows(L"db", L"bearing", L"NR");
    QCOMPARE(asked, std::wstring(L"db/bearing/NR/0"));
}

void tst_zelDatabase::mapHoldsTheRowsById()
{
    zelSetDatabaseProvider(threeRows());
    const std::map<short, zelWString> texts = DBreadmap(L"db", L"bearing", L"ID");
    QCOMPARE(texts.size(), size_t(3));
    QCOMPARE(texts.begin()->first, short(10));
    QVERIFY(texts.at(20) == L"6206");
}

void tst_zelDatabase::materialsAreAskedByType()
{
    ZelDatabaseProvider provider;
    provider.mMaterials = [](const zelWString &table, int type) {
        return ZelDatabaseProvider::Rows{
            {std::wstring(table) + std::to_wstring(type), short(100 + type)}};
    };
    zelSetDatabaseProvider(provider);
    const auto materials = DBreadmatlist(L"material", 3);
    QCOMPARE(materials.size(), size_t(1));
    QVERIFY(materials[0].first == L"material3");
    QCOMPARE(materials[0].second, short(103));
}

QTEST_APPLESS_MAIN(tst_zelDatabase)
#include "tst_zelDatabase.moc"
