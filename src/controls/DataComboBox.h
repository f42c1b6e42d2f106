#pragma once

#include "controls/SpokenComboBox.h"

#include <optional>

/// A combo box that keeps a data object beside each entry: the entry shows a short text, while
/// the program works with a full value. The data object of an entry that was added without one is
/// its text. Adding entries selects none of them. A text that is too wide for the box is elided.
class DataComboBox : public SpokenComboBox
{
    Q_OBJECT

public:
    using SpokenComboBox::SpokenComboBox;

    /// Appends an entry that shows one text and stands for another.
    void addDataObject(const QString &dataObject, const QString &comboObject);

    /// Inserts such an entry before the one at the index, which lies from 0 to count().
    void insertDataObject(const QString &dataObject, const QString &comboObject, int atIndex);

    void addItemWithObjectValue(const QString &value);
    void addItemsWithObjectValues(const QStringList &values);
    void insertItemWithObjectValue(const QString &value, int atIndex);

    /// Removes the entry at the index, which lies from 0 to count() - 1.
    void removeItemAtIndex(int index);

    /// Removes the first entry that shows this value. There must be one.
    void removeItemWithObjectValue(const QString &value);

    void removeAllItems();

    [[nodiscard]] bool containsDataObject(const QString &dataObject) const;

    /// The data object of the selected entry; nothing when none is selected.
    [[nodiscard]] std::optional<QString> dataObjectOfSelectedItem() const;

    /// Selects the first entry with this data object; without one the selection stays.
    void selectItemWithDataObjectValue(const QString &dataObject);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString dataObjectAt(int index) const;
    [[nodiscard]] int indexOfDataObject(const QString &dataObject) const;
};
