#pragma once

class QWidget;

// What all hosts do with the composite inputs inside them. Kept apart from the hosts, so that pages
// and dialogs share it.

/// Calls retranslateStrings() of every line below the host.
void retranslateLines(QWidget *host);
/// Every line below the host takes the default unit of the unit system, or its own with
/// `keepDefault`.
void updateLineUnits(QWidget *host, bool keepDefault);

/// Keeps a layout run from starting another one while it lasts.
class ZelQtLayoutGuard
{
public:
    explicit ZelQtLayoutGuard(bool &running)
        : mRunning(running)
        , mFirst(!running)
    {
        mRunning = true;
    }
    ~ZelQtLayoutGuard()
    {
        if (mFirst)
            mRunning = false;
    }
    ZelQtLayoutGuard(const ZelQtLayoutGuard &) = delete;
    ZelQtLayoutGuard &operator=(const ZelQtLayoutGuard &) = delete;

    bool isFirst() const { return mFirst; }

private:
    bool &mRunning;
    bool mFirst;
};

/// A window that nobody sized was measured before its first alignment; this measures it again. To
/// be called in a show event that isn't spontaneous.
void resizeUnsizedWindow(QWidget *window);
