#pragma once

#include <QCoreApplication>
#include <QMap>
#include <QTranslator>

/// A translation of a few texts, in any context. In force while the object exists.
class FakeTranslator final : public QTranslator
{
public:
    /// From each source text to its translation.
    explicit FakeTranslator(QMap<QString, QString> texts) : _texts(std::move(texts))
    {
        QCoreApplication::installTranslator(this);
    }
    ~FakeTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(FakeTranslator)

    [[nodiscard]] QString translate(const char * /*context*/, const char *source,
                                    const char * /*disambiguation*/, int /*n*/) const override
    {
        return _texts.value(QString::fromUtf8(source));
    }
    [[nodiscard]] bool isEmpty() const override { return _texts.isEmpty(); }

private:
    QMap<QString, QString> _texts;
};
