#pragma once

#include <QVariant>
#include <QWidget>

/// Controls carry their number as the property `controlId`, forms theirs as `dialogId`.
inline constexpr const char* kControlId = "controlId";
inline constexpr const char* kDialogId = "dialogId";

/// The control of a number below `parent`, null if there is none of the type.
template <typename Widget = QWidget>
Widget* FindControl(const QWidget* parent, int id)
{
    for (Widget* const child : parent->findChildren<Widget*>()) {
        if (child->property(kControlId).toInt() == id) {
            return child;
        }
    }
    return nullptr;
}
