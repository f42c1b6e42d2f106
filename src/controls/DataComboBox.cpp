#include "controls/DataComboBox.h"

#include <QStylePainter>

void DataComboBox::addDataObject(const QString &dataObject, const QString &comboObject)
{
    insertDataObject(dataObject, comboObject, count());
}

void DataComboBox::insertDataObject(const QString &dataObject, const QString &comboObject,
                                    int atIndex)
{
    Q_ASSERT(atIndex >= 0 && atIndex <= count());
    const bool hadSelection = currentIndex() >= 0;
    insertItem(atIndex, comboObject, dataObject);
    // QComboBox selects the first entry that is added to it.
    if (!hadSelection)
        setCurrentIndex(-1);
}

void DataComboBox::addItemWithObjectValue(const QString &value)
{
    addDataObject(value, value);
}

void DataComboBox::addItemsWithObjectValues(const QStringList &values)
{
    for (const QString &value : values)
        addItemWithObjectValue(value);
}

void DataComboBox::insertItemWithObjectValue(const QString &value, int atIndex)
{
    insertDataObject(value, value, atIndex);
}

void DataComboBox::removeItemAtIndex(int index)
{
    Q_ASSERT(index >= 0 && index < count());
    if (index == currentIndex())
        setCurrentIndex(-1);
    removeItem(index);
}

void DataComboBox::removeItemWithObjectValue(const QString &value)
{
    removeItemAtIndex(findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void DataComboBox::removeAllItems()
{
    clear();
}

bool DataComboBox::containsDataObject(const QString &dataObject) const
{
    return indexOfDataObject(dataObject) >= 0;
}

std::optional<QString> DataComboBox::dataObjectOfSelectedItem() const
{
    if (currentIndex() < 0)
        return std::nullopt;
    return dataObjectAt(currentIndex());
}

void DataComboBox::selectItemWithDataObjectValue(const QString &dataObject)
{
    const int index = indexOfDataObject(dataObject);
    if (index >= 0)
        setCurrentIndex(index);
}

void DataComboBox::paintEvent(QPaintEvent * /*event*/)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    // Styles leave one pixel free at each side, and clip the text.
    constexpr int margins = 2;
    option.currentText =
        fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, room.width() - margins);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QString DataComboBox::dataObjectAt(int index) const
{
    const QVariant object = itemData(index);
    return object.isValid() ? object.toString() : itemText(index);
}

int DataComboBox::indexOfDataObject(const QString &dataObject) const
{
    for (int index = 0; index < count(); ++index) {
        if (dataObjectAt(index) == dataObject)
            return index;
    }
    return -1;
}
