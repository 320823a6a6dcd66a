#pragma once

#include "app/MainFrame.h"
#include "app/OrrevaApp.h"
#include "lib/text/Language.h"
#include "pages/sheet/Controls.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <type_traits>

/// The whole program, started in a language with an empty profile, in a folder of its own. Help pages are not
/// opened but noted.
class AppFixture : public testing::Test {
protected:
    explicit AppFixture(int language = kEnglish);
    ~AppFixture() override;

    QAction* Action(int commandId) const;
    /// Chooses a command in the menu.
    void Choose(int commandId) const;
    /// Makes the telescope that the quick New dialog proposes.
    void MakeTelescope() const;
    /// Runs `act` on the modal dialog that opens next; fails the test if none does or it stays open.
    template <typename Dialog = QDialog>
    void InNextDialog(std::function<void(Dialog&)> act)
    {
        ++expectedDialogs;
        QTimer::singleShot(0, &context, [this, act = std::move(act)] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(nullptr, dialog);
            ++seenDialogs;
            act(*dialog);
        });
    }

    /// Chooses a command and runs `act` on the dialog that it opens; closes it then.
    template <typename Dialog = QDialog>
    void InDialogOf(int commandId, std::type_identity_t<std::function<void(Dialog&)>> act)
    {
        InNextDialog<Dialog>([&act](Dialog& dialog) {
            act(dialog);
            dialog.close();
        });
        Choose(commandId);
    }

    static void Click(const QWidget& parent, int controlId);
    static void Type(const QWidget& parent, int controlId, const QString& text);
    /// Types over what stands in a field.
    static void TypeOver(QWidget& field, const QString& text);
    static QString Text(const QWidget& parent, int controlId);

    QTemporaryDir state; ///< where copies of designs are kept
    TemporaryFolder folder;
    QObject context;
    std::unique_ptr<COrrevaApp> app;
    std::vector<QUrl> helpPages;
    int expectedDialogs = 0;
    int seenDialogs = 0;
};

class GermanAppFixture : public AppFixture {
protected:
    GermanAppFixture() : AppFixture(kGerman) {}
};
