#pragma once

#include <QApplication>
#include <QEvent>
#include <QTranslator>
#include <QWidget>

/// Translates every text of one context into "<text> translated", while it lives.
class ContextTranslator : public QTranslator
{
public:
    explicit ContextTranslator(const char *context)
        : mContext(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~ContextTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return mContext == context ? QString::fromUtf8(text) + QStringLiteral(" translated")
                                   : QString();
    }

private:
    QByteArray mContext;
};

/// Tells a window of a change of the language, as the application does.
inline void changeLanguage(QWidget *window)
{
    QEvent event(QEvent::LanguageChange);
    QApplication::sendEvent(window, &event);
}
