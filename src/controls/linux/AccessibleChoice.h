#pragma once

#include "controls/SpokenText.h"

#include <QAccessibleWidget>

class QComboBox;

/// Presents a combo box to assistive programs as Qt does under Linux, and has its chosen entry read
/// aloud. The box must not be editable.
class AccessibleChoice final : public QAccessibleWidget
{
public:
    explicit AccessibleChoice(QComboBox &combo);

    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::State state() const override;

    // The list is the only child.
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString &name) override;

private:
    [[nodiscard]] bool isOpen() const;

    QComboBox &_combo;
    SpokenText _chosen;
};
