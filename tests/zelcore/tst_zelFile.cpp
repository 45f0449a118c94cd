#include "zelFile.h"

#include <QtTest>

namespace {

zelWString toWide(const QString &text)
{
    return zelWString(text.toStdWString());
}

QString toText(const zelWString &text)
{
    return QString::fromStdWString(text);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file";
}

} // namespace

class tst_zelFile : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void projectDirectoryHasNoSeparatorAtItsEnd();
    void workingDirectoryServesUntilOneIsSet();
    void fullNames_data();
    void fullNames();
    void pathsInStandardDirectoriesBecomeShort_data();
    void pathsInStandardDirectoriesBecomeShort();
    void pathStaysWhenItsShortNameMeansAnotherFile();
    void writesUtf8WithLineFeeds();
    void modeSaysWhatHappensToTheFormerText();
    void fileThatCannotBeWrittenSwallows();

private:
    QString path(const QString &name) const { return mDir->filePath(name); }
    void touch(const QString &name) const;

    QScopedPointer<QTemporaryDir> mDir;
};

void tst_zelFile::init()
{
    mDir.reset(new QTemporaryDir);
    QVERIFY(mDir->isValid());
    QVERIFY(QDir(mDir->path()).mkpath("project/sub"));
    QVERIFY(QDir(mDir->path()).mkpath("catalogue"));
    touch("project/own.dat");
    touch("catalogue/wire.dat");
    zelFile::SetProjectDir(toWide(path("project")));
    zelFile::SetStandardDirs({toWide(path("catalogue/"))});
}

void tst_zelFile::cleanup()
{
    zelFile::SetProjectDir({});
    zelFile::SetStandardDirs({});
}

void tst_zelFile::touch(const QString &name) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void tst_zelFile::projectDirectoryHasNoSeparatorAtItsEnd()
{
    for (const char *end : {"", "/", "/./"}) {
        zelFile::SetProjectDir(toWide(path("project") + end));
        QCOMPARE(toText(zelFile::GetProjectDir()), path("project"));
    }
    zelFile::SetProjectDir(L"/");
    QCOMPARE(toText(zelFile::GetProjectDir()), QString("/"));
}

void tst_zelFile::workingDirectoryServesUntilOneIsSet()
{
    zelFile::SetProjectDir({});
    QCOMPARE(toText(zelFile::GetProjectDir()), QDir::currentPath());
}

void tst_zelFile::fullNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("full");
    QTest::newRow("of the project") << "own.dat"
                                    << "project/own.dat";
    QTest::newRow("of a standard directory") << "wire.dat"
                                             << "catalogue/wire.dat";
    QTest::newRow("of none") << "new.dat"
                             << "project/new.dat";
    QTest::newRow("below") << "sub/../own.dat"
                           << "project/own.dat";
    QTest::newRow("absolute") << "/usr/x.dat"
                              << "/usr/x.dat";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_zelFile::fullNames()
{
    QFETCH(QString, name);
    QFETCH(QString, full);
    const QString expected = full.isEmpty() || full.startsWith('/') ? full : path(full);
    QCOMPARE(toText(zelFile::GetFullName(toWide(name).data())), expected);
}

void tst_zelFile::pathsInStandardDirectoriesBecomeShort_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("shortened");
    QTest::newRow("project") << "project/own.dat"
                             << "own.dat";
    QTest::newRow("below the project") << "project/sub/new.dat"
                                       << "sub/new.dat";
    QTest::newRow("standard directory") << "catalogue/wire.dat"
                                        << "wire.dat";
    QTest::newRow("beside") << "catalogue2/wire.dat"
                            << "";
    QTest::newRow("above") << "x.dat"
                           << "";
    QTest::newRow("the directory itself") << "project"
                                          << "";
}

void tst_zelFile::pathsInStandardDirectoriesBecomeShort()
{
    QFETCH(QString, file);
    QFETCH(QString, shortened);
    QCOMPARE(toText(zelFile::CheckForStandardPath(toWide(path(file)))),
             shortened.isEmpty() ? path(file) : shortened);
}

void tst_zelFile::pathStaysWhenItsShortNameMeansAnotherFile()
{
    touch("project/wire.dat");
    QCOMPARE(toText(zelFile::CheckForStandardPath(toWide(path("catalogue/wire.dat")))),
             path("catalogue/wire.dat"));
    QCOMPARE(toText(zelFile::CheckForStandardPath(toWide(path("project/wire.dat")))),
             QString("wire.dat"));
}

void tst_zelFile::writesUtf8WithLineFeeds()
{
    {
        zelFile file(toWide(path("Länge.txt")), 18, true, zelFileEncoding::Utf8);
        file.stream() << zelWString(L"Länge") << '\t' << zelWString(12) << '\n';
        QVERIFY(file.stream().good());
    }
    QCOMPARE(contentOf(path("Länge.txt")), QByteArray("L\xC3\xA4nge\t12\n"));
}

void tst_zelFile::modeSaysWhatHappensToTheFormerText()
{
    const zelWString name = toWide(path("x.txt"));
    zelFile(name, 18, true, zelFileEncoding::Utf8).stream() << zelWString(L"first");
    zelFile(name, zelFile::Write, true, zelFileEncoding::Utf8).stream() << zelWString(L"+");
    QCOMPARE(contentOf(path("x.txt")), QByteArray("first+"));
    zelFile(name, 18, true, zelFileEncoding::Utf8).stream() << zelWString(L"second");
    QCOMPARE(contentOf(path("x.txt")), QByteArray("second"));
    {
        zelFile closed(name, 0, true, zelFileEncoding::Utf8);
        QVERIFY(!closed.stream().good());
        closed.stream() << zelWString(L"third");
    }
    QCOMPARE(contentOf(path("x.txt")), QByteArray("second"));
}

void tst_zelFile::fileThatCannotBeWrittenSwallows()
{
    zelFile file(toWide(path("missing/x.txt")), 18, true, zelFileEncoding::Utf8);
    QVERIFY(!file.stream().good());
    file.stream() << zelWString(L"text") << '\n';
    QVERIFY(!QFile::exists(path("missing/x.txt")));
}

QTEST_APPLESS_MAIN(tst_zelFile)
#include "tst_zelFile.moc"
