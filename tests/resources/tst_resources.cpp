#include <QtSvg>
#include <QtTest>

#include <QXmlStreamReader>

// Walks the list of embedded files and looks at every drawing as the widgets will load it.
class tst_resources : public QObject
{
    Q_OBJECT

private slots:
    void listIsSortedAndWithoutFolders();
    void listIsTheContentOfTheFolder();
    void everyFileHasAUser_data();
    void everyFileHasAUser();
    void drawingIsValid_data();
    void drawingIsValid();
    void drawingHasItsSize_data();
    void drawingHasItsSize();
    void drawingIsNotEmptyAt16Pixels_data();
    void drawingIsNotEmptyAt16Pixels();
    void drawingFillsItsSquare_data();
    void drawingFillsItsSquare();
    void drawingHasOnlyPlainShapes_data();
    void drawingHasOnlyPlainShapes();
    void drawingHasOnlyTheCommonColours_data();
    void drawingHasOnlyTheCommonColours();
    void drawingStandsOutFromEveryPalette_data();
    void drawingStandsOutFromEveryPalette();
    void pixmapHasTheSizeOfTheDrawing_data();
    void pixmapHasTheSizeOfTheDrawing();
};

// Names that the classes ask for, with the size of the drawing. A file that is in the list of
// resources but not here has no user.
static const QMap<QString, int> &knownSizes()
{
    static const QMap<QString, int> sizes = [] {
        QMap<QString, int> map;
        for (const char *name : {"button_convert",
                                 "button_database",
                                 "button_file",
                                 "button_info",
                                 "button_offer",
                                 "button_plus",
                                 "button_row_add",
                                 "button_row_bottom",
                                 "button_row_clear",
                                 "button_row_del",
                                 "button_row_down",
                                 "button_row_top",
                                 "button_row_up",
                                 "button_settings",
                                 "button_size",
                                 "close",
                                 "collapseAll",
                                 "copy",
                                 "cursorMeasure",
                                 "cursorRect",
                                 "dock",
                                 "expandAll",
                                 "maximize",
                                 "measure",
                                 "minimize",
                                 "move",
                                 "normalize",
                                 "print",
                                 "save",
                                 "search",
                                 "select",
                                 "undefined",
                                 "zoomFit",
                                 "zoomIn",
                                 "zoomOut",
                                 "zoomRect"})
            map.insert(QLatin1String(name) + ".svg", 24);
        for (const char *name : {"msgCritical", "msgInfo", "msgQuestion", "msgWarning"})
            map.insert(QLatin1String(name) + ".svg", 48);
        return map;
    }();
    return sizes;
}

static const char *const aboutPicture = "aboutBox.png";

static QStringList listedFiles()
{
    QFile file(QStringLiteral(RESOURCE_DIR "/customwidgets.qrc"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no list of resources");
    QStringList names;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == "file")
            names << reader.readElementText();
    return names;
}

static void addDrawings()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : listedFiles())
        if (name.endsWith(".svg"))
            QTest::newRow(qPrintable(name)) << name;
}

static QImage rendered(const QString &name, int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(":/" + name).render(&painter);
    return image;
}

void tst_resources::listIsSortedAndWithoutFolders()
{
    const QStringList names = listedFiles();
    QVERIFY(!names.isEmpty());
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(names, sorted);
    QVERIFY(names.filter("/").isEmpty());
}

void tst_resources::listIsTheContentOfTheFolder()
{
    QStringList files = QDir(RESOURCE_DIR).entryList({"*.svg", "*.png"}, QDir::Files);
    std::sort(files.begin(), files.end());
    QCOMPARE(listedFiles(), files);
}

void tst_resources::everyFileHasAUser_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : listedFiles())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_resources::everyFileHasAUser()
{
    QFETCH(QString, name);
    QVERIFY(knownSizes().contains(name) || name == aboutPicture);
    QVERIFY(QFile::exists(":/" + name));
}

void tst_resources::drawingIsValid_data()
{
    addDrawings();
}

void tst_resources::drawingIsValid()
{
    QFETCH(QString, name);
    QVERIFY(QSvgRenderer(":/" + name).isValid());
}

void tst_resources::drawingHasItsSize_data()
{
    addDrawings();
}

void tst_resources::drawingHasItsSize()
{
    QFETCH(QString, name);
    const QSvgRenderer renderer(":/" + name);
    const int size = knownSizes().value(name);
    QCOMPARE(renderer.defaultSize(), QSize(size, size));
    QCOMPARE(renderer.viewBox(), QRect(0, 0, 24, 24)); // one grid for all
}

void tst_resources::drawingIsNotEmptyAt16Pixels_data()
{
    addDrawings();
}

void tst_resources::drawingIsNotEmptyAt16Pixels()
{
    QFETCH(QString, name);
    const QImage image = QIcon(":/" + name).pixmap(16).toImage();
    QCOMPARE(image.size(), QSize(16, 16));
    int opaque = 0;
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            opaque += qAlpha(image.pixel(x, y)) > 127;
    QVERIFY2(opaque >= 16, qPrintable(QString::number(opaque)));
}

void tst_resources::drawingFillsItsSquare_data()
{
    addDrawings();
}

// A drawing that slid off its grid or stayed small looks lost beside the others.
void tst_resources::drawingFillsItsSquare()
{
    QFETCH(QString, name);
    const QImage image = rendered(name, 240);
    QRect used;
    for (int y = 0; y < 240; ++y)
        for (int x = 0; x < 240; ++x)
            if (qAlpha(image.pixel(x, y)) > 0)
                used |= QRect(x, y, 1, 1);
    QVERIFY(qMax(used.width(), used.height()) >= 160);
    QVERIFY(qAbs(used.center().x() - 120) <= 20);
}

static QVector<QXmlStreamAttributes> elementsOf(const QString &name, QStringList *tags)
{
    QFile file(":/" + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no such resource");
    QVector<QXmlStreamAttributes> attributes;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            *tags << reader.name().toString();
            attributes << reader.attributes();
        }
    return attributes;
}

void tst_resources::drawingHasOnlyPlainShapes_data()
{
    addDrawings();
}

// QtSvg ignores clip paths, masks and filters without a word, and fonts differ between machines.
void tst_resources::drawingHasOnlyPlainShapes()
{
    QFETCH(QString, name);
    QStringList tags;
    elementsOf(name, &tags);
    QCOMPARE(tags.takeFirst(), QStringLiteral("svg"));
    QVERIFY2(!tags.isEmpty() && tags.size() <= 4, "one to four shapes");
    for (const QString &tag : tags)
        QVERIFY2(QStringList({"path", "rect", "circle", "line"}).contains(tag), qPrintable(tag));
}

void tst_resources::drawingHasOnlyTheCommonColours_data()
{
    addDrawings();
}

// Cursors lie on drawings of any colour and are black and white; the signs of the message boxes
// stand white on their ground.
void tst_resources::drawingHasOnlyTheCommonColours()
{
    QFETCH(QString, name);
    QStringList allowed{"none", "#74808d", "#1f87d6", "#2f9e57", "#cf6a12", "#d64545"};
    if (name.startsWith("msg"))
        allowed << "#ffffff";
    if (name.startsWith("cursor"))
        allowed = QStringList{"none", "#000000", "#ffffff"};
    QStringList tags;
    const QVector<QXmlStreamAttributes> elements = elementsOf(name, &tags);
    for (int i = 1; i < elements.size(); ++i) {
        // Without the attribute a shape is filled black.
        QVERIFY(elements[i].hasAttribute("fill"));
        QVERIFY(!elements[i].hasAttribute("style"));
        for (const char *attribute : {"fill", "stroke"}) {
            const QString colour = elements[i].value(attribute).toString();
            QVERIFY2(colour.isEmpty() || allowed.contains(colour), qPrintable(colour));
        }
    }
}

static double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

static double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

void tst_resources::drawingStandsOutFromEveryPalette_data()
{
    addDrawings();
}

// One file serves light and dark palettes: at the size of the drawing its full pixels keep a
// contrast of about 3 to 1 to each ground (WCAG 2.1, non-text contrast).
void tst_resources::drawingStandsOutFromEveryPalette()
{
    QFETCH(QString, name);
    if (name.startsWith("cursor"))
        return; // told apart by its halo instead
    const QImage image = rendered(name, 240);
    for (const char *ground : {"#ffffff", "#f0f0f0", "#2b2b2b"}) {
        int clear = 0;
        int full = 0;
        for (int y = 0; y < 240; ++y)
            for (int x = 0; x < 240; ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.alpha() < 255 || colour == Qt::white)
                    continue;
                ++full;
                clear += contrast(colour, QColor(ground)) >= 2.95;
            }
        QVERIFY(full > 0);
        QVERIFY2(clear >= full * 0.95, ground); // the rest are blended edges
    }
}

void tst_resources::pixmapHasTheSizeOfTheDrawing_data()
{
    addDrawings();
}

void tst_resources::pixmapHasTheSizeOfTheDrawing()
{
    QFETCH(QString, name);
    const int size = knownSizes().value(name);
    QCOMPARE(QPixmap(":/" + name).size(), QSize(size, size));
}

QTEST_MAIN(tst_resources)
#include "tst_resources.moc"
