// A mask of value lines (label, symbol, field, unit with menu, icon button) built from a
// description, beside the same mask written with QGridLayout, QLabel, QLineEdit and QToolButton.

#include "descriptionMask.h"
#include "measure.h"
#include "plainMask.h"
#include "zelLanguage.h"
#include "zelQtValueEdit.h"

#include <QApplication>
#include <QTest>

namespace {

constexpr int lineCounts[] = {100, 1000, 4000};

// Everything that a show leaves to the event loop belongs to it.
void showFully(QWidget &widget)
{
    widget.show();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

QVector<double> values(int lines, double seed)
{
    QVector<double> result(lines);
    for (int i = 0; i < lines; ++i)
        result[i] = seed + i * 0.25;
    return result;
}

Comparison buildAndShow(int lines)
{
    const auto module = DescriptionMask::makeModule(lines);
    const int runs = lines > 1000 ? 7 : 9;
    return compare(
        QStringLiteral("build and show %1 lines").arg(lines), QStringLiteral("ms"),
        [&] {
            std::unique_ptr<DescriptionMask> mask;
            return milliseconds([&] {
                mask = std::make_unique<DescriptionMask>(*module);
                showFully(*mask);
            });
        },
        [&] {
            std::unique_ptr<PlainMask> mask;
            return milliseconds([&] {
                mask = std::make_unique<PlainMask>(lines);
                mask->setValues(values(lines, 0));
                showFully(*mask);
            });
        },
        runs);
}

Comparison refresh(int lines, bool changed)
{
    const auto module = DescriptionMask::makeModule(lines);
    DescriptionMask mask(*module);
    PlainMask plain(lines);
    showFully(mask);
    showFully(plain);
    double seed = 1;
    const auto next = [&] { return values(lines, changed ? seed += 1 : seed); };
    return compare(
        QStringLiteral("refresh %1 lines, %2")
            .arg(lines)
            .arg(changed ? QStringLiteral("all changed") : QStringLiteral("unchanged")),
        QStringLiteral("ms"),
        [&] {
            const QVector<double> fresh = next();
            return milliseconds([&] {
                mask.setValues(fresh);
                QCoreApplication::processEvents();
            });
        },
        [&] {
            const QVector<double> fresh = next();
            return milliseconds([&] {
                plain.setValues(fresh);
                QCoreApplication::processEvents();
            });
        });
}

Comparison keystroke()
{
    constexpr int strokes = 200;
    const auto module = DescriptionMask::makeModule(100);
    DescriptionMask mask(*module);
    PlainMask plain(100);
    showFully(mask);
    showFully(plain);
    int heard = 0;
    QObject::connect(&mask, &ZelQtParentWidget::valueChanged, &mask, [&heard] { ++heard; });
    QObject::connect(&plain, &PlainMask::valueChanged, &plain, [&heard] { ++heard; });
    const auto type = [&](QLineEdit *field) {
        field->clear();
        const double time = milliseconds([&] {
            for (int i = 0; i < strokes; ++i)
                QTest::keyClick(field, i % 2 ? Qt::Key_Backspace : Qt::Key_7);
        });
        return time * 1000 / strokes;
    };
    return compare(
        QStringLiteral("one keystroke, host and listener"), QStringLiteral("us"),
        [&] { return type(mask.field(50)); }, [&] { return type(plain.field(50)); });
}

Comparison language(int lines)
{
    const auto module = DescriptionMask::makeModule(lines);
    DescriptionMask mask(*module);
    PlainMask plain(lines);
    showFully(mask);
    showFully(plain);
    bool german = true;
    return compare(
        QStringLiteral("language change, %1 lines").arg(lines), QStringLiteral("ms"),
        [&] {
            german = !german;
            return milliseconds([&] {
                setZelLanguage(german ? ZelLanguage::German : ZelLanguage::English);
                QEvent change(QEvent::LanguageChange);
                QCoreApplication::sendEvent(&mask, &change);
                mask.mask().retranslate();
                QCoreApplication::processEvents();
            });
        },
        [&] {
            return milliseconds([&] {
                QEvent change(QEvent::LanguageChange);
                QCoreApplication::sendEvent(&plain, &change);
                plain.retranslate(german);
                QCoreApplication::processEvents();
            });
        });
}

Comparison memory(int lines)
{
    const auto module = DescriptionMask::makeModule(lines);
    return compare(
        QStringLiteral("memory per line, mask of %1").arg(lines), QStringLiteral("bytes"),
        [&] {
            const double before = allocatedBytes();
            DescriptionMask mask(*module);
            showFully(mask);
            return (allocatedBytes() - before) / lines;
        },
        [&] {
            const double before = allocatedBytes();
            PlainMask mask(lines);
            mask.setValues(values(lines, 0));
            showFully(mask);
            return (allocatedBytes() - before) / lines;
        },
        3);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    std::vector<Comparison> comparisons;
    for (const int lines : lineCounts)
        comparisons.push_back(buildAndShow(lines));
    for (const int lines : lineCounts)
        comparisons.push_back(refresh(lines, true));
    for (const int lines : lineCounts)
        comparisons.push_back(refresh(lines, false));
    comparisons.push_back(keystroke());
    for (const int lines : lineCounts)
        comparisons.push_back(language(lines));
    comparisons.push_back(memory(1000));
    print(comparisons);
    return 0;
}
