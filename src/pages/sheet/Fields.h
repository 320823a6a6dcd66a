#pragma once

#include <functional>
#include <initializer_list>
#include <string>

class QAbstractButton;
class QLineEdit;

// How pages and dialogs bind their fields of one line.

/// What was typed, as the core's text.
std::string TextOf(const QLineEdit* edit);
/// Shows a text that the user did not type: it counts as no change.
void ShowText(QLineEdit* edit, const std::string& text);
/// Typing into one of the edits calls `typed`.
void BindTyping(std::initializer_list<QLineEdit*> edits, const std::function<void()>& typed);
/// For screen readers, the button is called by its field, too.
void NameReset(QAbstractButton* button, const QLineEdit* edit);
/// The button shows the text that `reset` makes, and calls `changed` then.
void BindReset(
    QAbstractButton* button, QLineEdit* edit, std::function<std::string()> reset,
    std::function<void()> changed = [] {});
