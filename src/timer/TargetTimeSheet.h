#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class TargetTime;
}

/// The sheet in which the end of a countdown is picked: a calendar and a date field that follow
/// each other. It only asks; accepted() and rejected() say how it was answered.
class TargetTimeSheet final : public QDialog
{
    Q_OBJECT

public:
    explicit TargetTimeSheet(QWidget &parent);
    ~TargetTimeSheet() override;

    /// Nothing earlier than this can be picked. Fractions of a second are left out.
    void setMinDate(const QDateTime &date);

    [[nodiscard]] QDateTime dateValue() const;
    void setDateValue(const QDateTime &date);

private:
    std::unique_ptr<Ui::TargetTime> _ui;
};
