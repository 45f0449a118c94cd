#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

/// Acts on a menu or dialog that blocks the test while it is open. Lives on the stack of the test,
/// around the call that opens it; `ran()` tells afterwards that it really came up. What is still
/// open after the action is closed.
template <class Widget, class Act> class BlockingAction
{
public:
    BlockingAction(QWidget *(*active)(), Act act)
    {
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this, active, act] {
            auto *widget = dynamic_cast<Widget *>(active());
            if (!widget || !widget->isVisible())
                return;
            mTimer.stop();
            mRan = true;
            const QPointer<QWidget> guard(widget);
            // The platform reports the window as active by an event. Processed after the window has
            // gone it would take the focus from the field below.
            QCoreApplication::processEvents();
            if (!guard)
                return;
            act(widget);
            if (guard && guard->isVisible())
                guard->close();
        });
        mTimer.start(1);
    }

    bool ran() const { return mRan; }

private:
    QTimer mTimer;
    bool mRan = false;
};

/// `const auto menu = onPopup<QMenu>([](QMenu *menu) { ... });` for the next menu.
template <class Widget = QWidget, class Act> [[nodiscard]] auto onPopup(Act act)
{
    return BlockingAction<Widget, Act>(&QApplication::activePopupWidget, std::move(act));
}

/// The same for the next modal dialog; set Qt::AA_DontUseNativeDialogs where Qt's own come up.
template <class Widget = QWidget, class Act> [[nodiscard]] auto onModal(Act act)
{
    return BlockingAction<Widget, Act>(&QApplication::activeModalWidget, std::move(act));
}
