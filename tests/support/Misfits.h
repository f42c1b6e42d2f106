#pragma once

#include <QStringList>

class QWidget;

/// The texts of the window's visible widgets that have less room than they need, each with its
/// widget. Texts of the display are drawn smaller rather than cut off; here they need most of their
/// usual size. An entry of a combo box counts whether it is selected or not.
[[nodiscard]] QStringList misfits(const QWidget &window);
