#include "zelDimensions.h"

#include <QXmlStreamReader>
#include <QtTest>

// What the description of the mask and its texts must agree in, whatever reads them.
class tst_springDescription : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void namesOfVariablesAreUnique();
    void everyVariableHasOnePlaceInTheMask();
    void everyAlternativeNamesVariables();
    void everyUnitIsKnown_data();
    void everyUnitIsKnown();
    void everyConditionNamesVariablesAndEntries_data();
    void everyConditionNamesVariablesAndEntries();
    void everyTextHasGermanAndEnglish_data();
    void everyTextHasGermanAndEnglish();

private:
    struct Element
    {
        QString mTag;
        QString mParent;
        QXmlStreamAttributes mAttributes;
    };

    QStringList values(const QString &parent, const QString &attribute,
                       const QStringList &tags = {}) const;
    QStringList texts() const;

    QVector<Element> mElements;
    QMap<QString, QStringList> mEntries; ///< names of the entries of each list
    QMap<QString, QStringList> mRows; ///< cells of the table of texts by German text
};

static QByteArray content(const char *name)
{
    QFile file(QLatin1String(SPRING_DIR "/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is missing", name);
    return file.readAll();
}

void tst_springDescription::initTestCase()
{
    QXmlStreamReader reader(content("spring.xml"));
    QStringList parents{QString()};
    QString list;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            const QString tag = reader.name().toString();
            mElements.append({tag, parents.last(), reader.attributes()});
            parents << tag;
            if (tag == "entry")
                mEntries[list] << reader.attributes().value("name").toString();
            else
                list = reader.attributes().value("name").toString();
        } else if (token == QXmlStreamReader::EndElement) {
            parents.removeLast();
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));

    QStringList lines = QString::fromUtf8(content("spring.tsv")).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(
        lines.takeFirst(),
        QStringLiteral("German\tEnglish\tFrench\tItalian\tSpanish\tRussian\tPortuguese\tChinese"
                       "\tJapanese"));
    for (const QString &line : lines) {
        const QStringList cells = line.split('\t');
        QCOMPARE(cells.size(), 9);
        QVERIFY2(!mRows.contains(cells[0]), qPrintable(cells[0]));
        mRows.insert(cells[0], cells);
    }
}

QStringList tst_springDescription::values(const QString &parent, const QString &attribute,
                                          const QStringList &tags) const
{
    QStringList found;
    for (const Element &element : mElements)
        if ((parent.isEmpty() || element.mParent == parent)
            && (tags.isEmpty() || tags.contains(element.mTag))
            && element.mAttributes.hasAttribute(attribute))
            found << element.mAttributes.value(attribute).toString();
    return found;
}

QStringList tst_springDescription::texts() const
{
    QStringList found = values({}, "text") + values({}, "status");
    found.removeDuplicates();
    return found;
}

void tst_springDescription::namesOfVariablesAreUnique()
{
    QStringList names = values("variables", "name");
    QVERIFY(names.size() > 50);
    QCOMPARE(names.removeDuplicates(), 0);
    for (const QString &name : names)
        QVERIFY2(QRegularExpression("^[A-Za-z][A-Za-z0-9_]*$").match(name).hasMatch(),
                 qPrintable(name));
}

void tst_springDescription::everyVariableHasOnePlaceInTheMask()
{
    QStringList variables =
        values("variables", "name", {"real", "int", "bool", "list", "reallist"});
    QStringList placed = values({}, "name", {"var"});
    QVERIFY(values({}, "class", {"external"}).contains("InstallationForm"));
    placed << "DH"
           << "phi"
           << "room"; // fields of that form
    variables.sort();
    placed.sort();
    QCOMPARE(placed, variables);
}

void tst_springDescription::everyAlternativeNamesVariables()
{
    const QStringList alternatives = values("choice", "vars");
    QCOMPARE(alternatives, QStringList({"L1 L2", "F1 F2"}));
    const QStringList variables = values("variables", "name", {"real"});
    for (const QString &name : alternatives.join(' ').split(' '))
        QVERIFY2(variables.contains(name), qPrintable(name));
}

void tst_springDescription::everyUnitIsKnown_data()
{
    QTest::addColumn<QString>("unit");
    QStringList units = values({}, "unit");
    units.removeDuplicates();
    for (const QString &unit : units)
        QTest::newRow(qPrintable(unit)) << unit;
}

void tst_springDescription::everyUnitIsKnown()
{
    QFETCH(QString, unit);
    QVERIFY(ZelDimensions::getUnit(unit.toStdWString()) != ZelDimensions::NoUnit);
}

void tst_springDescription::everyConditionNamesVariablesAndEntries_data()
{
    QTest::addColumn<QString>("condition");
    QStringList conditions = values({}, "enabled") + values({}, "visible") + values({}, "readonly");
    conditions.removeDuplicates();
    for (const QString &condition : conditions)
        QTest::newRow(qPrintable(condition)) << condition;
}

void tst_springDescription::everyConditionNamesVariablesAndEntries()
{
    QFETCH(QString, condition);
    const QStringList numbers = values("variables", "name", {"real"});
    for (const QString &part : condition.split(" or ")) {
        const auto entry = QRegularExpression("^(\\w+) (==|!=) '(\\w+)'$").match(part);
        const auto number = QRegularExpression("^(\\w+) > 0$").match(part);
        QVERIFY2(number.hasMatch() ? numbers.contains(number.captured(1))
                                   : mEntries.value(entry.captured(1)).contains(entry.captured(3)),
                 qPrintable(part));
    }
}

void tst_springDescription::everyTextHasGermanAndEnglish_data()
{
    QTest::addColumn<QString>("text");
    for (const QString &text : texts())
        QTest::newRow(qPrintable(text)) << text;
}

void tst_springDescription::everyTextHasGermanAndEnglish()
{
    QFETCH(QString, text);
    QVERIFY(mRows.contains(text));
    QVERIFY(!mRows[text][1].isEmpty());
}

QTEST_APPLESS_MAIN(tst_springDescription)
#include "tst_springDescription.moc"
