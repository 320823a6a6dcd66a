#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

/// Types a name into the file dialog that opens next, under one of its filters, and confirms it; an empty
/// name cancels it.
inline void AnswerNextFileDialog(QObject& context, const QString& name, const QString& filter = {})
{
    QTimer::singleShot(0, &context, [name, filter] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, dialog);
        if (!filter.isEmpty()) {
            dialog->selectNameFilter(filter);
        }
        if (name.isEmpty()) {
            dialog->reject();
            return;
        }
        dialog->findChild<QLineEdit*>()->setText(name);
        static_cast<QDialog*>(dialog)->accept();
    });
}
