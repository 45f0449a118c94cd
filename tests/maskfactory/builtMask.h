#pragma once

#include "recorder.h"
#include "window.h"
#include "zelMask.h"
#include "zelQtTabPage.h"
#include "zelQtUiFactory.h"

#include <QLineEdit>
#include <QVBoxLayout>

/// A mask built with widgets from the text of a description, in a host, with the application round
/// it: what the user confirms anywhere is collected, and the mask is shown anew.
class BuiltMask
{
public:
    using Prepare = std::function<void(ZelQtUiFactory &)>;

    /// `prepare` announces forms to the factory.
    explicit BuiltMask(const QByteArray &xml, const Prepare &prepare = {})
        : BuiltMask(ZelDescription(), xml, prepare)
    {
    }
    /// The same for a file, with the translations beside it.
    static std::unique_ptr<BuiltMask> fromFile(const QString &path)
    {
        ZelFaultList faults;
        ZelDescription description = ZelDescription::fromFile(path.toStdString(), faults);
        return std::unique_ptr<BuiltMask>(new BuiltMask(std::move(description), {}, {}));
    }

    Meta &meta() const { return mLoaded->meta(); }
    ZelQtTabPage *page(size_t index = 0) const
    {
        return dynamic_cast<ZelQtTabPage *>(mMask->pages().at(index));
    }
    /// The widget of that class and object name on any page; it must be there.
    template <class Widget> Widget *find(const char *name) const
    {
        auto *widget = mHost->findChild<Widget *>(QString::fromUtf8(name));
        if (!widget)
            qFatal("no widget %s", name);
        return widget;
    }
    bool has(const char *name) const { return mHost->findChild<QWidget *>(name); }
    [[nodiscard]] bool show() { return showAndActivate(mHost.get()); }

    double real(const wchar_t *name, int component = 0) const
    {
        return meta().real(*meta().variable(name), 0, component);
    }
    int64_t integer(const wchar_t *name) const { return meta().integer(*meta().variable(name), 0); }
    bool isEntered(const wchar_t *name) const
    {
        return meta().isEntered(*meta().variable(name), 0);
    }
    QStringList faults() const
    {
        QStringList list;
        for (const ZelFault &fault : mFaults)
            list << QString::fromStdString(fault.toString());
        return list;
    }

    ZelFaultList mFaults;
    std::unique_ptr<ZelLoadedModule> mLoaded;
    ZelQtUiFactory mFactory;
    std::unique_ptr<ZelMask> mMask;
    std::unique_ptr<RecordedPage> mHost = std::make_unique<RecordedPage>();
    int mCollected = 0;

private:
    BuiltMask(ZelDescription description, const QByteArray &xml, const Prepare &prepare)
    {
        if (prepare)
            prepare(mFactory);
        if (!xml.isEmpty())
            description = ZelDescription::fromText(xml.toStdString(), "test.xml", mFaults);
        mLoaded = zelLoadModule(std::move(description), ZelModuleRegistry(), mFaults);
        mMask = std::make_unique<ZelMask>(*mLoaded, mFactory, mFaults);
        auto *layout = new QVBoxLayout(mHost.get());
        for (size_t i = 0; i < mMask->pages().size(); ++i)
            layout->addWidget(page(i));
        mFactory.discardUnused();
        // Value signals stop at the nearest page, nested ones included.
        const auto pages = mHost->findChildren<ZelQtTabPage *>();
        for (ZelQtTabPage *page : pages)
            QObject::connect(page, &ZelQtTabPage::valueConfirmed, mHost.get(), [this] {
                if (!mLoaded)
                    return;
                ++mCollected;
                mMask->collect();
                mMask->refresh();
            });
    }
};

/// Clicks the field, marks its text and types over it. It keeps the focus.
[[nodiscard]] inline bool type(QLineEdit *field, const QString &text)
{
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClick(field, Qt::Key_End, Qt::ShiftModifier);
    QTest::keyClicks(field, text);
    return field->hasFocus();
}

/// The same, and leaves it by the Tab key.
[[nodiscard]] inline bool enter(QLineEdit *field, const QString &text)
{
    const bool typed = type(field, text);
    QTest::keyClick(field, Qt::Key_Tab);
    return typed && !field->hasFocus();
}

/// Clicks the indicator at the left of a check box or radio button.
inline void tick(QWidget *button)
{
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

inline QPoint placeOn(const QWidget *widget, const QWidget *window)
{
    return widget->mapTo(window, QPoint(0, 0));
}
