#include "pages/sheet/Fields.h"

#include "painting/QtText.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <utility>

std::string TextOf(const QLineEdit* edit) { return FromQString(edit->text()); }

void ShowText(QLineEdit* edit, const std::string& text)
{
    const QSignalBlocker quiet(edit);
    edit->setText(ToQString(text));
}

void BindTyping(std::initializer_list<QLineEdit*> edits, const std::function<void()>& typed)
{
    for (QLineEdit* const edit : edits) {
        QObject::connect(edit, &QLineEdit::textChanged, edit, typed);
    }
}

namespace {

/// What a field is called: by the label that it belongs to, else by its own name for screen readers.
QString NameOf(const QLineEdit* edit)
{
    for (const QLabel* const label : edit->window()->findChildren<QLabel*>()) {
        if (label->buddy() == edit) {
            return label->text().remove('&');
        }
    }
    return edit->accessibleName();
}

} // namespace

void NameReset(QAbstractButton* button, const QLineEdit* edit)
{
    if (const QString field = NameOf(edit); !field.isEmpty()) {
        button->setAccessibleName(field + ": " + button->toolTip());
    }
}

void BindReset(QAbstractButton* button, QLineEdit* edit, std::function<std::string()> reset,
               std::function<void()> changed)
{
    NameReset(button, edit);
    QObject::connect(button, &QAbstractButton::clicked, edit,
                     [edit, reset = std::move(reset), changed = std::move(changed)] {
                         ShowText(edit, reset());
                         changed();
                     });
}
