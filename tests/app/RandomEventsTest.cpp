// Many random events on the real widgets, the same ones in every run: nothing crashes, hangs or asserts, and
// the design can always be saved and opened again as it is.
//
// ORREVA_RANDOM_EVENTS asks for another number of events a language, ORREVA_RANDOM_SEED for others.

#include "app/AppFixture.h"

#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "model/record/RecordFields.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <random>

namespace {

constexpr int kEvents = 20000;
constexpr unsigned kSeed = 20040101;

int Setting(const char* name, int usual)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? value : usual;
}

constexpr const char* kTexts[] = {"",    "0",      "1",    "2,5",     "50",     "250",   "1500", "-5",
                                  "abc", "1e300",  "1e-9", "99999",   "1.#INF", "3..4",  "8 mm", "sqrt(2)",
                                  "0.1", "-1e308", "007",  "nothing", "Size",   "6*7+1", "20.5", "12"};

constexpr Qt::Key kKeys[] = {Qt::Key_Tab, Qt::Key_Backtab,  Qt::Key_Space,  Qt::Key_Return, Qt::Key_Escape,
                             Qt::Key_Up,  Qt::Key_Down,     Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Home,
                             Qt::Key_End, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Delete, Qt::Key_Backspace,
                             Qt::Key_1,   Qt::Key_7,        Qt::Key_A,      Qt::Key_X,      Qt::Key_F1};
constexpr Qt::Key kControlKeys[] = {Qt::Key_Z, Qt::Key_Y, Qt::Key_S, Qt::Key_E, Qt::Key_N, Qt::Key_O,
                                    Qt::Key_Q, Qt::Key_C, Qt::Key_V, Qt::Key_A, Qt::Key_X};

/// What belongs to the toolkit, or would change the language of the rest.
bool IsLeftOut(int command)
{
    return command == 0 || command == 57606 || command == 57607 || command == 57609 || command == 32808 ||
           command == 32809;
}

/// Dialogs that print or choose paper: their files are not the test's.
bool IsOfTheToolkit(const QWidget& dialog)
{
    return dialog.inherits("QAbstractPrintDialog") || dialog.inherits("QPageSetupDialog") ||
           dialog.inherits("QPrintPreviewDialog");
}

/// Whether the format has a text for each value that is read back as such: it has none for a NaN or a
/// negative infinity, an angle bracket, a carriage return, or a long text.
bool HasItsText(const COrrevaData& record)
{
    constexpr std::size_t kLongest = 1000;
    return std::ranges::all_of(RecordFields(), [&record](const RecordField& field) {
        if (const auto* const real = std::get_if<RealField>(&field.field)) {
            return !std::isnan(record.*real->place) && record.*real->place != -HUGE_VAL;
        }
        const auto* const text = std::get_if<TextField>(&field.field);
        const std::string_view value = text != nullptr ? (record.*text->place).GetText() : "";
        return value.size() < kLongest && value.find_first_of("<\r") == std::string_view::npos;
    });
}

/// A user who does not know what he does. Each event is one turn of the event loop, also within dialogs.
class RandomUser : public QObject {
    Q_OBJECT

public:
    RandomUser(COrrevaApp& app, const TemporaryFolder& folder, unsigned seed)
        : m_app(app), m_folder(folder), m_random(seed)
    {
        app.Frame().installEventFilter(this);
    }

    void Act(int events)
    {
        m_left = events;
        Next();
        while (m_left > 0 || QApplication::activeModalWidget() != nullptr) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    int Checked() const { return m_checked; }
    int Dialogs() const { return m_dialogs; }

protected:
    /// The window stays: there is no user without it.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Close) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    unsigned Any(std::size_t below)
    {
        return static_cast<unsigned>(m_random() % std::max<std::size_t>(below, 1));
    }
    bool Chance(unsigned percent) { return Any(100) < percent; }
    template <typename T, std::size_t N>
    T Any(const T (&from)[N])
    {
        return from[Any(N)];
    }

    void Next()
    {
        QTimer::singleShot(0, this, [this] {
            if (m_left > 0 || QApplication::activeModalWidget() != nullptr) {
                Next(); // before what may open a dialog, whose loop goes on with it
                One();
            }
        });
    }

    void One()
    {
        QWidget* const modal = QApplication::activeModalWidget();
        if (--m_left <= 0) {
            Leave(modal);
        } else if (QWidget* const popup = QApplication::activePopupWidget()) {
            QTest::keyClick(popup, Chance(40) ? Qt::Key_Down : Chance(70) ? Qt::Key_Return : Qt::Key_Escape);
        } else if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
            Answer(*box);
        } else if (auto* const files = qobject_cast<QFileDialog*>(modal)) {
            Choose(*files);
        } else if (modal != nullptr && IsOfTheToolkit(*modal)) {
            qobject_cast<QDialog*>(modal)->reject();
        } else if (modal != nullptr) {
            m_dialogs += m_seen != modal ? 1 : 0;
            m_seen = modal;
            Chance(4) ? Leave(modal) : Touch(*modal);
        } else {
            m_seen = nullptr;
            if (m_left % 50 == 0) {
                CheckDesign();
            }
            Chance(12) ? Command() : Touch(m_app.Frame());
        }
    }

    void Leave(QWidget* modal)
    {
        if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
            Answer(*box);
        } else if (auto* const dialog = qobject_cast<QDialog*>(modal)) {
            Chance(50) && qobject_cast<QFileDialog*>(modal) == nullptr ? dialog->accept() : dialog->reject();
        } else if (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }

    /// No assertion fails but the one that a user meets who adds more zones than a mask holds.
    void Answer(QMessageBox& box)
    {
        EXPECT_TRUE(box.windowTitle() != "Assert" || box.text().contains("i<MAX_MASK_ZONES"))
            << box.text().toStdString();
        QAbstractButton* const ignore = box.button(QMessageBox::Ignore);
        const auto buttons = box.buttons();
        (ignore != nullptr ? ignore : buttons[Any(static_cast<std::size_t>(buttons.size()))])->click();
    }

    /// Files of the test's own folder alone.
    void Choose(QFileDialog& dialog)
    {
        static constexpr const char* kNames[] = {"a.orreva.xml", "b",          "old.orreva",
                                                 "c.len",        "letter.txt", "missing"};
        auto* const buttons = dialog.findChild<QDialogButtonBox*>();
        auto* const open = buttons->button(QDialogButtonBox::Open);
        if (Chance(30)) {
            dialog.reject();
            return;
        }
        const QString folder = QString::fromStdString(m_folder.Path().string());
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(folder + '/' + Any(kNames));
        (open != nullptr ? open : buttons->button(QDialogButtonBox::Save))->click();
    }

    void Command()
    {
        std::vector<QAction*> actions;
        for (QAction* const action : m_app.Frame().findChildren<QAction*>()) {
            if (action->isEnabled() && !IsLeftOut(action->property("commandId").toInt())) {
                actions.push_back(action);
            }
        }
        actions[Any(actions.size())]->trigger();
    }

    void Touch(QWidget& window)
    {
        std::vector<QWidget*> widgets;
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() && widget->window() == &window &&
                qobject_cast<QMenuBar*>(widget) == nullptr && widget->width() > 0 && widget->height() > 0) {
                widgets.push_back(widget);
            }
        }
        if (widgets.empty()) {
            return;
        }
        QWidget& widget = *widgets[Any(widgets.size())];
        QWidget& focused = window.focusWidget() != nullptr ? *window.focusWidget() : window;
        const QPoint at(static_cast<int>(Any(static_cast<std::size_t>(widget.width()))),
                        static_cast<int>(Any(static_cast<std::size_t>(widget.height()))));
        switch (Any(10)) {
        case 0:
        case 1:
        case 2:
            QTest::mouseClick(&widget, Chance(85) ? Qt::LeftButton : Qt::RightButton, {}, at);
            break;
        case 3:
            QTest::mouseMove(&widget, at);
            break;
        case 4: {
            QWheelEvent wheel(at, widget.mapToGlobal(QPointF(at)), {}, {0, Chance(50) ? 120 : -120},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&widget, &wheel);
            break;
        }
        case 5:
            Slide(window);
            break;
        case 6:
            QTest::keyClick(&focused, Any(kControlKeys), Qt::ControlModifier);
            break;
        case 7:
            QTest::keyClick(&focused, static_cast<char>('a' + Any(26)), Qt::AltModifier);
            break;
        case 8:
            TypeText(focused);
            break;
        default:
            QTest::keyClick(&focused, Any(kKeys));
            break;
        }
    }

    void TypeText(QWidget& field)
    {
        const QString text = QString::fromUtf8(Any(kTexts));
        if (auto* const edit = qobject_cast<QLineEdit*>(&field); edit != nullptr && !edit->isReadOnly()) {
            edit->selectAll();
            edit->del();
            QTest::keyClicks(edit, text);
        } else if (auto* const remarks = qobject_cast<QPlainTextEdit*>(&field)) {
            remarks->selectAll();
            QTest::keyClicks(remarks, text);
        }
    }

    void Slide(QWidget& window)
    {
        if (auto* const slider = window.findChild<QSlider*>("slider");
            slider != nullptr && slider->isVisible()) {
            const auto span = static_cast<std::size_t>(std::int64_t{slider->maximum()} - slider->minimum());
            slider->setValue(static_cast<int>(slider->minimum() + std::int64_t{Any(span + 1)}));
            slider->repaint();
        }
    }

    /// What a file would hold of the record is read back as the same.
    void CheckDesign()
    {
        COrrevaDoc& document = m_app.Document();
        const COrrevaData& record = document.main_record;
        if (!document.HasFile() || !HasItsText(record)) {
            return;
        }
        const std::string bytes = WriteTelescope(record);
        COrrevaData again;
        ReadTelescope(XmlScanner::FromText(bytes), again);
        EXPECT_EQ(bytes, WriteTelescope(again));
        ++m_checked;
    }

    COrrevaApp& m_app;
    const TemporaryFolder& m_folder;
    std::mt19937 m_random;
    QWidget* m_seen = nullptr;
    int m_left = 0;
    int m_checked = 0;
    int m_dialogs = 0;
};

void ActAtRandom(COrrevaApp& app, const TemporaryFolder& folder)
{
    std::filesystem::copy_file(ORREVA_SOURCE_DIR "/tests/golden/exchange/truss.orreva", "old.orreva");
    std::filesystem::copy_file(ORREVA_SOURCE_DIR "/share/examples/newton-200-1200.orreva.xml",
                               "a.orreva.xml");
    folder.Write("letter.txt", "Dear Anna");
    app.Frame().resize(640, 480);
    RandomUser user(app, folder, static_cast<unsigned>(Setting("ORREVA_RANDOM_SEED", kSeed)));
    const int events = Setting("ORREVA_RANDOM_EVENTS", kEvents);
    user.Act(events);
    testing::Test::RecordProperty("dialogs", user.Dialogs());
    testing::Test::RecordProperty("designs", user.Checked());
    EXPECT_GT(user.Dialogs(), events / 400) << "the events reach the dialogs";
    EXPECT_GT(user.Checked(), events / 1000) << "and there are designs to check";
}

class RandomEvents : public AppFixture {};
class RandomEventsGerman : public GermanAppFixture {};

TEST_F(RandomEvents, LoseNothing) { ActAtRandom(*app, folder); }
TEST_F(RandomEventsGerman, LoseNothing) { ActAtRandom(*app, folder); }

} // namespace

#include "RandomEventsTest.moc"
