#pragma once

#include <QTextEdit>

struct MeasurementTable;

/// A table of kitchen measures to look things up in. It has no behaviour of its own, but its text
/// can be selected and copied, and read aloud by a screen reader.
class MeasurementsPanel final : public QTextEdit
{
    Q_OBJECT

public:
    explicit MeasurementsPanel(QWidget *parent = nullptr);

    /// As wide as the tables, and high enough for most of them.
    [[nodiscard]] QSize sizeHint() const override;

private:
    [[nodiscard]] static QString html();
    [[nodiscard]] static QString htmlOf(const MeasurementTable &table);
};
