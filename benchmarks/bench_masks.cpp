// A mask of value lines (label, symbol, field, unit with menu, icon button) built from a
// description, beside the same mask written with QGridLayout, QLabel, QLineEdit and QToolButton.

#include "descriptionMask.h"
#include "measure.h"
#include "plainMask.h"
#include "zelLanguage.h"
#include "zelQtValueEdit.h"

#include <QApplication>
#include <QScrollArea>
#include <QTest>

#include <algorithm>

namespace {

constexpr int lineCounts[] = {100, 1000, 4000};

// The largest masks take seconds each.
int runsFor(int lines)
{
    return lines > 1000 ? 3 : 7;
}

// A window of usual size that scrolls its mask, which it owns.
class Window : public QScrollArea
{
public:
    explicit Window(QWidget *mask)
    {
        setWidgetResizable(true);
        resize(900, 700);
        setWidget(mask);
        // Everything that a show leaves to the event loop belongs to it.
        show();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
};

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
    return compare(
        QStringLiteral("build and show %1 lines").arg(lines), QStringLiteral("ms"),
        [&] {
            std::unique_ptr<Window> window;
            return milliseconds(
                [&] { window = std::make_unique<Window>(new DescriptionMask(*module)); });
        },
        [&] {
            std::unique_ptr<Window> window;
            return milliseconds([&] {
                auto *mask = new PlainMask(lines);
                mask->setValues(values(lines, 0));
                window = std::make_unique<Window>(mask);
            });
        },
        runsFor(lines));
}

Comparison destroy(int lines)
{
    const auto module = DescriptionMask::makeModule(lines);
    return compare(
        QStringLiteral("delete %1 lines").arg(lines), QStringLiteral("ms"),
        [&] {
            auto window = std::make_unique<Window>(new DescriptionMask(*module));
            return milliseconds([&] { window.reset(); });
        },
        [&] {
            auto window = std::make_unique<Window>(new PlainMask(lines));
            return milliseconds([&] { window.reset(); });
        },
        runsFor(lines));
}

Comparison refresh(int lines, bool changed)
{
    const auto module = DescriptionMask::makeModule(lines);
    auto *mask = new DescriptionMask(*module);
    auto *plain = new PlainMask(lines);
    const Window maskWindow(mask);
    const Window plainWindow(plain);
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
                mask->setValues(fresh);
                QCoreApplication::processEvents();
            });
        },
        [&] {
            const QVector<double> fresh = next();
            return milliseconds([&] {
                plain->setValues(fresh);
                QCoreApplication::processEvents();
            });
        },
        runsFor(lines));
}

Comparison keystroke()
{
    constexpr int strokes = 200;
    const auto module = DescriptionMask::makeModule(100);
    auto *mask = new DescriptionMask(*module);
    auto *plain = new PlainMask(100);
    const Window maskWindow(mask);
    const Window plainWindow(plain);
    int heard = 0;
    QObject::connect(mask, &ZelQtParentWidget::valueChanged, mask, [&heard] { ++heard; });
    QObject::connect(plain, &PlainMask::valueChanged, plain, [&heard] { ++heard; });
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
        [&] { return type(mask->field(5)); }, [&] { return type(plain->field(5)); });
}

Comparison language(int lines)
{
    const auto module = DescriptionMask::makeModule(lines);
    auto *mask = new DescriptionMask(*module);
    auto *plain = new PlainMask(lines);
    const Window maskWindow(mask);
    const Window plainWindow(plain);
    bool german = true;
    return compare(
        QStringLiteral("language change, %1 lines").arg(lines), QStringLiteral("ms"),
        [&] {
            german = !german;
            return milliseconds([&] {
                setZelLanguage(german ? ZelLanguage::German : ZelLanguage::English);
                QEvent change(QEvent::LanguageChange);
                QCoreApplication::sendEvent(mask, &change);
                mask->mask().retranslate();
                QCoreApplication::processEvents();
            });
        },
        [&] {
            return milliseconds([&] {
                QEvent change(QEvent::LanguageChange);
                QCoreApplication::sendEvent(plain, &change);
                plain->retranslate(german);
                QCoreApplication::processEvents();
            });
        },
        runsFor(lines));
}

Comparison memory(int lines)
{
    const auto module = DescriptionMask::makeModule(lines);
    return compare(
        QStringLiteral("memory per line, mask of %1").arg(lines), QStringLiteral("bytes"),
        [&] {
            const double before = allocatedBytes();
            const Window window(new DescriptionMask(*module));
            return (allocatedBytes() - before) / lines;
        },
        [&] {
            const double before = allocatedBytes();
            auto *mask = new PlainMask(lines);
            mask->setValues(values(lines, 0));
            const Window window(mask);
            return (allocatedBytes() - before) / lines;
        },
        3);
}

using Case = std::function<Comparison()>;

std::vector<std::pair<QString, Case>> makeCases()
{
    std::vector<std::pair<QString, Case>> cases;
    for (const int lines : lineCounts)
        cases.emplace_back(QStringLiteral("build %1").arg(lines),
                           [=] { return buildAndShow(lines); });
    for (const int lines : lineCounts)
        cases.emplace_back(QStringLiteral("delete %1").arg(lines), [=] { return destroy(lines); });
    for (const int lines : lineCounts)
        cases.emplace_back(QStringLiteral("changed %1").arg(lines),
                           [=] { return refresh(lines, true); });
    for (const int lines : lineCounts)
        cases.emplace_back(QStringLiteral("unchanged %1").arg(lines),
                           [=] { return refresh(lines, false); });
    cases.emplace_back(QStringLiteral("keystroke"), keystroke);
    for (const int lines : lineCounts)
        cases.emplace_back(QStringLiteral("language %1").arg(lines),
                           [=] { return language(lines); });
    for (const int lines : lineCounts)
        cases.emplace_back(QStringLiteral("memory %1").arg(lines), [=] { return memory(lines); });
    return cases;
}

} // namespace

// Without arguments all cases, else those whose short name is one of the arguments or begins with
// it: "build", "refresh 1000".
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList wanted = QCoreApplication::arguments().mid(1);
    printHead();
    for (const auto &[name, run] : makeCases()) {
        const auto isMeant = [&name = name](const QString &text) { return name.startsWith(text); };
        if (wanted.isEmpty() || std::any_of(wanted.begin(), wanted.end(), isMeant))
            print(run());
    }
    return 0;
}
