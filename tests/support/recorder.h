#pragma once

#include "zelQtParentDialog.h"
#include "zelQtParentWidget.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

/// Signals of any number of objects in one list, in the order in which they come: the only way to
/// see that a host hears of something before a widget's own listeners do.
class EventRecorder
{
public:
    /// Adds `name` at each emission.
    template <class Sender, class Signal>
    void record(Sender *sender, Signal signal, const QString &name)
    {
        QObject::connect(sender, signal, &mContext, [this, name] { mEvents.append(name); });
    }

    /// Adds "name(first, second)" at each emission; the arguments must fit into a QVariant.
    template <class Sender, class Class, class... Arguments>
    void recordArguments(Sender *sender, void (Class::*signal)(Arguments...), const QString &name)
    {
        QObject::connect(sender, signal, &mContext, [this, name](Arguments... arguments) {
            const QStringList texts{QVariant(arguments).toString()...};
            mEvents.append(name + '(' + texts.join(QStringLiteral(", ")) + ')');
        });
    }

    /// The two signals of the confirmation protocol, as "field valueChanged" and
    /// "field valueConfirmed" for the prefix "field".
    template <class Widget> void recordProtocol(Widget *widget, const QString &prefix)
    {
        record(widget, &Widget::valueChanged, prefix + QStringLiteral(" valueChanged"));
        record(widget, &Widget::valueConfirmed, prefix + QStringLiteral(" valueConfirmed"));
    }

    /// For what is no signal: a call of a virtual operation, for example.
    void add(const QString &name) { mEvents.append(name); }

    const QStringList &events() const { return mEvents; }
    /// What came so far; the list is empty afterwards.
    QStringList take()
    {
        QStringList events;
        events.swap(mEvents);
        return events;
    }

private:
    QObject mContext;
    QStringList mEvents;
};

/// A host whose signals stand in a recorder as "host valueChanged", "host infoChanged(7)" and so
/// on.
template <class Host> class RecordedHost : public Host
{
public:
    explicit RecordedHost(QWidget *parent = nullptr)
        : Host(parent)
    {
        mRecorder.recordProtocol(static_cast<Host *>(this), QStringLiteral("host"));
        mRecorder.recordArguments(this, qOverload<int>(&Host::infoChanged),
                                  QStringLiteral("host infoChanged"));
        mRecorder.recordArguments(this, qOverload<QString>(&Host::infoChanged),
                                  QStringLiteral("host infoChanged"));
        mRecorder.recordArguments(this, &Host::helpChanged, QStringLiteral("host helpChanged"));
    }

    QStringList take() { return mRecorder.take(); }

    EventRecorder mRecorder;
};

using RecordedPage = RecordedHost<ZelQtParentWidget>;
using RecordedDialog = RecordedHost<ZelQtParentDialog>;
