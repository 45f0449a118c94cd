#include "zelSchema.h"

#include <QtTest>

#include <set>

class tst_zelSchemaTable : public QObject
{
    Q_OBJECT
private slots:
    void keysAreUniqueAndParentsExist();
    void everyAttributeIsExplained();
    void enumerationsHaveWords();
    void pageOfDocumentationHasEveryTagAndAttribute();
};

void tst_zelSchemaTable::keysAreUniqueAndParentsExist()
{
    std::set<std::string_view> keys;
    for (const ZelSchemaTag &tag : zelSchemaTags())
        QVERIFY2(keys.insert(tag.mKey).second, std::string(tag.mKey).c_str());
    for (const ZelSchemaTag &tag : zelSchemaTags()) {
        for (const QString &parent :
             QString::fromUtf8(tag.mParents.data(), int(tag.mParents.size()))
                 .split(' ', Qt::SkipEmptyParts))
            QVERIFY2(keys.contains(parent.toStdString()), qPrintable(parent));
        std::set<std::string_view> names;
        for (const auto &group : tag.mGroups) {
            for (const ZelSchemaAttribute &attribute : group)
                QVERIFY2(names.insert(attribute.mName).second,
                         (std::string(tag.mKey) + " " + std::string(attribute.mName)).c_str());
        }
    }
    // One tag may not mean two things in one place.
    for (const ZelSchemaTag &parent : zelSchemaTags()) {
        for (const ZelSchemaTag &tag : zelSchemaTags()) {
            if (tag.mayStandIn(&parent))
                QCOMPARE(zelSchemaTag(tag.mTag, &parent), &tag);
        }
    }
}

void tst_zelSchemaTable::everyAttributeIsExplained()
{
    for (const ZelSchemaTag &tag : zelSchemaTags()) {
        QVERIFY2(!tag.mExplanation.empty(), std::string(tag.mKey).c_str());
        for (const auto &group : tag.mGroups) {
            for (const ZelSchemaAttribute &attribute : group) {
                QVERIFY2(!attribute.mExplanation.empty(), std::string(attribute.mName).c_str());
                QVERIFY(!zelSchemaTypeText(attribute).empty());
            }
        }
    }
}

void tst_zelSchemaTable::enumerationsHaveWords()
{
    for (const ZelSchemaTag &tag : zelSchemaTags()) {
        for (const auto &group : tag.mGroups) {
            for (const ZelSchemaAttribute &attribute : group) {
                const bool wanted = attribute.mType == ZelSchemaType::Enumeration
                    || attribute.mType == ZelSchemaType::Buttons;
                QCOMPARE(!attribute.mWords.empty(), wanted);
            }
        }
    }
}

void tst_zelSchemaTable::pageOfDocumentationHasEveryTagAndAttribute()
{
    const QString page = QString::fromStdString(zelSchemaMarkdown());
    QVERIFY(page.startsWith("# The description of a module\n"));
    QCOMPARE(page.count("\n## `<"), int(zelSchemaTags().size()));
    for (const ZelSchemaTag &tag : zelSchemaTags()) {
        const QString name = QString::fromUtf8(tag.mTag.data(), int(tag.mTag.size()));
        QVERIFY2(page.contains("## `<" + name + ">`"), qPrintable(name));
        for (const auto &group : tag.mGroups) {
            for (const ZelSchemaAttribute &attribute : group)
                QVERIFY(page.contains(
                    "| `" + QString::fromUtf8(attribute.mName.data(), int(attribute.mName.size()))
                    + "` | "));
        }
    }
    QVERIFY(page.contains("| `by` | one of switch, typing |"));
    QVERIFY(page.contains("## `<column>` in `<table>`"));
    QVERIFY(page.contains("## `<column>` in `<board>`"));
}

QTEST_GUILESS_MAIN(tst_zelSchemaTable)
#include "tst_zelSchemaTable.moc"
