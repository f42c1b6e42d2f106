#pragma once

#include <QObject>

class QWidget;

/// Draws the text of a field or button legibly while it is disabled, only paler than usual. For
/// texts that are worth reading even then; themes draw disabled texts too faintly for that.
class LegibleWhenDisabled final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the widget. Sets no more of its palette than the colours of disabled texts.
    explicit LegibleWhenDisabled(QWidget &widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void adjust();

    QWidget &_widget;
};
