#pragma once

#include "app/AppFixture.h"
#include "pages/sheet/Controls.h"
#include "pages/sheet/PropertySheet.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

inline QString Utf8(const char* text) { return QString::fromUtf8(text); }

/// The page at an index, brought to the front.
inline CPropertyPage& PageOf(CPropertySheet& sheet, int index)
{
    sheet.SetActivePage(index);
    return *sheet.Page(index);
}

inline QString TabTitle(const CPropertySheet& sheet, int index)
{
    return sheet.findChild<QTabWidget*>()->tabText(index);
}

inline QPushButton& SheetButton(const CPropertySheet& sheet, const char* name)
{
    return *sheet.findChild<QPushButton*>(name);
}

/// The text of the label whose field is a control.
inline QString LabelOf(const QWidget& page, int controlId)
{
    for (const QLabel* const label : page.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr && label->buddy()->property(kControlId).toInt() == controlId) {
            return label->text();
        }
    }
    return "no label";
}

/// Empties a field and pastes a text into it, as one change.
inline void Paste(const QWidget& page, int controlId, const QString& text)
{
    auto* const control = FindControl<QWidget>(&page, controlId);
    ASSERT_NE(nullptr, control) << controlId;
    QGuiApplication::clipboard()->setText(text);
    control->setFocus();
    QTest::keyClick(control, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(control, Qt::Key_Delete);
    QTest::keyClick(control, Qt::Key_V, Qt::ControlModifier);
}

/// What a user may leave in a field of numbers, sense or not.
inline QStringList OddTexts()
{
    return {"",    "-",      "abc",    "0",      "-1",           "1,5",        "1e300",           "-1e300",
            "nan", "1e-300", "1.#INF", "-1.5.5", "999999999999", Utf8("ä€中"), QString(1001, '9')};
}

/// A fixture with a telescope that is loaded and saved.
template <class Base>
class OnSavedTelescope : public Base {
protected:
    OnSavedTelescope()
    {
        Base::MakeTelescope();
        Document().main_record.SaveAs("mine.orreva.xml");
    }

    COrrevaDoc& Document() const { return Base::app->Document(); }
    COrrevaData& Main() const { return Document().main_record; }
    COrrevaData& Scratch() const { return Document().scratch_record; }

    /// Runs `act` on the sheet that a command opens; a sheet that is still open then ends with Cancel.
    template <class Sheet, class Act>
    void InSheet(int command, Act act)
    {
        ++Base::expectedDialogs;
        QTimer::singleShot(0, &(Base::context), [this, act] {
            auto* const sheet = qobject_cast<Sheet*>(QApplication::activeModalWidget());
            ASSERT_NE(nullptr, sheet);
            ++Base::seenDialogs;
            QCoreApplication::processEvents(); // the sheet stands and is laid out
            act(*sheet);
            if (sheet->isVisible()) {
                sheet->reject();
            }
        });
        Base::Choose(command);
    }
};
