#include "pages/sheet/Fields.h"

#include "painting/QtText.h"

#include <QAbstractButton>
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

void BindReset(QAbstractButton* button, QLineEdit* edit, std::function<std::string()> reset,
               std::function<void()> changed)
{
    QObject::connect(button, &QAbstractButton::clicked, edit,
                     [edit, reset = std::move(reset), changed = std::move(changed)] {
                         ShowText(edit, reset());
                         changed();
                     });
}
