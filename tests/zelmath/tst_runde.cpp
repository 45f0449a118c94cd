#include "runde.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

class tst_runde : public QObject
{
    Q_OBJECT

private slots:
    void roundsHalvesAwayFromZero_data();
    void roundsHalvesAwayFromZero();
    void aZeroIsNeverNegative();
    void numbersThatAreNoneStay();
    void aResultBeyondTheLargestDoubleStays();
    void theResultIsTheDoubleOfTheWrittenNumber();
    void roundingTwiceChangesNothing();
};

void tst_runde::roundsHalvesAwayFromZero_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("rounded");
    const auto row = [](double value, int decimals, double rounded) {
        QTest::addRow("%.17g to %d places", value, decimals) << value << decimals << rounded;
    };
    // Whole numbers.
    row(0.5, 0, 1);
    row(1.5, 0, 2);
    row(2.5, 0, 3);
    row(-2.5, 0, -3);
    row(2.4999999999999996, 0, 2);
    row(0.49999999999999994, 0, 0);
    row(4503599627370497.5, 0, 4503599627370498.0);
    // Places behind the point.
    row(0.125, 2, 0.13);
    row(-0.125, 2, -0.13);
    row(3.14159, 4, 3.1416);
    row(0.05, 1, 0.1);
    row(0.04, 1, 0);
    row(0.004, 1, 0);
    row(9.9999, 3, 10);
    row(0.3, 1, 0.3);
    row(1.1, 15, 1.1);
    row(1.1, 32767, 1.1);
    // Numbers that are written with a half but whose double lies beside it.
    row(1.005, 2, 1.01);
    row(-1.005, 2, -1.01);
    row(2.675, 2, 2.68);
    row(1.0049999999999997, 2, 1);
    row(0.285, 2, 0.29);
    row(1.45, 1, 1.5);
    row(8.345, 2, 8.35);
    // Places before the point.
    row(1234.5, -2, 1200);
    row(1250, -2, 1300);
    row(-1250, -2, -1300);
    row(50, -2, 100);
    row(49, -2, 0);
    row(5, -2, 0);
    row(999, -1, 1000);
    row(1, -32768, 0);
    // Very large and very small ones.
    row(1e300, 2, 1e300);
    row(1e300, 300, 1e300);
    row(1.25e300, -299, 1.3e300);
    row(5e-324, 323, 1e-323);
    row(5e-324, 324, 5e-324);
    row(1.5e-310, 310, 2e-310);
    row(1e-300, 4, 0);
}

// Written with all digits: QCOMPARE lets doubles differ.
void tst_runde::roundsHalvesAwayFromZero()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(double, rounded);
    QCOMPARE(QByteArray::number(Runde(value, static_cast<short>(decimals)), 'g', 17),
             QByteArray::number(rounded, 'g', 17));
}

// Else a field would show "-0".
void tst_runde::aZeroIsNeverNegative()
{
    for (const double value : {-0.0, -0.3, -1e-300}) {
        for (const short decimals : std::initializer_list<short>{0, -2}) {
            QVERIFY(Runde(value, decimals) == 0);
            QVERIFY(!std::signbit(Runde(value, decimals)));
        }
    }
    QVERIFY(!std::signbit(Runde(-0.004, 2)));
}

void tst_runde::numbersThatAreNoneStay()
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const short decimals : std::initializer_list<short>{0, 3, -3}) {
        QVERIFY(Runde(infinity, decimals) == infinity);
        QVERIFY(Runde(-infinity, decimals) == -infinity);
        QVERIFY(std::isnan(Runde(std::nan(""), decimals)));
    }
}

void tst_runde::aResultBeyondTheLargestDoubleStays()
{
    const double largest = std::numeric_limits<double>::max();
    QVERIFY(Runde(largest, -308) == largest);
    QVERIFY(Runde(-largest, -308) == -largest);
    QVERIFY(Runde(6e307, -308) == 1e308);
}

// A quotient of powers of ten would miss some of them in the last digit.
void tst_runde::theResultIsTheDoubleOfTheWrittenNumber()
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> number(-1e6, 1e6);
    for (int i = 0; i < 20000; ++i) {
        const double value = number(random);
        const short decimals = static_cast<short>(1 + i % 8);
        const double rounded = Runde(value, decimals);
        QVERIFY(QByteArray::number(rounded, 'f', decimals).toDouble() == rounded);
        // A double near a million is up to 6e-11 beside the number that it stands for.
        QVERIFY(std::abs(rounded - value) <= 0.5 * std::pow(10.0, -decimals) + 3e-10);
    }
}

void tst_runde::roundingTwiceChangesNothing()
{
    for (int i = -2000; i < 2000; ++i) {
        const double once = Runde(i * 0.00725, 2);
        QVERIFY(Runde(once, 2) == once);
    }
}

QTEST_APPLESS_MAIN(tst_runde)
#include "tst_runde.moc"
