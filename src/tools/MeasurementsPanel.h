#pragma once

#include <QTextEdit>

struct MeasurementTable;

/// Tables of kitchen measures. The text cannot be edited, but it can be selected and copied, and a
/// screen reader can read it.
class MeasurementsPanel final : public QTextEdit
{
    Q_OBJECT

public:
    explicit MeasurementsPanel(QWidget *parent = nullptr);

    /// As wide as the tables, and high enough for most of them.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] static QString html();
    [[nodiscard]] static QString htmlOf(const MeasurementTable &table);
};
