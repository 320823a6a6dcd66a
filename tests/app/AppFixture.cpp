#include "app/AppFixture.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

/// Takes the pages that the program opens, in the web browser's place.
class Browser : public QObject {
    Q_OBJECT

public:
    explicit Browser(std::vector<QUrl>& pages) : seen(pages) {}

public slots:
    void Open(const QUrl& page) { seen.push_back(page); }

private:
    std::vector<QUrl>& seen;
};

std::unique_ptr<Browser> g_browser;

/// The manual stands on the web or beside the program.
constexpr const char* kSchemes[] = {"https", "file"};

} // namespace

AppFixture::AppFixture(int language)
{
    qputenv("XDG_STATE_HOME", QFile::encodeName(stateFolder.path()));
    qputenv("BROWSER", "true"); // the one that stands in for it
    g_browser = std::make_unique<Browser>(helpPages);
    for (const char* const scheme : kSchemes) {
        QDesktopServices::setUrlHandler(scheme, g_browser.get(), "Open");
    }
    COrrevaApp::Profile().setValue("Settings/Language", language);
    app = std::make_unique<COrrevaApp>();
    EXPECT_TRUE(app->InitInstance({}));
    app->Frame().resize(1200, 800);
    app->Frame().activateWindow();
    QCoreApplication::processEvents();
}

AppFixture::~AppFixture()
{
    EXPECT_EQ(expectedDialogs, seenDialogs);
    app->Document().active_record->SetModified(0);
    app.reset();
    g_nLanguage = kEnglish;
    for (const char* const scheme : kSchemes) {
        QDesktopServices::unsetUrlHandler(scheme);
    }
    g_browser.reset();
}

QAction* AppFixture::Action(int commandId) const
{
    for (QAction* const action : app->Frame().findChildren<QAction*>()) {
        if (action->property("commandId").toInt() == commandId) {
            return action;
        }
    }
    return nullptr;
}

void AppFixture::Choose(int commandId) const
{
    QAction* const action = Action(commandId);
    ASSERT_NE(nullptr, action) << commandId;
    ASSERT_TRUE(action->isEnabled()) << commandId;
    action->trigger();
    QCoreApplication::processEvents();
}

void AppFixture::MakeTelescope() const
{
    QTimer::singleShot(0, [] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->accept();
        }
    });
    Choose(32771);
    ASSERT_TRUE(app->Document().HasFile());
}

void AppFixture::Click(const QWidget& parent, int controlId)
{
    auto* const control = FindControl<QWidget>(&parent, controlId);
    ASSERT_NE(nullptr, control) << controlId;
    // A radio button or check box takes the click on its mark, which stands at its left.
    const QPoint at = control->inherits("QRadioButton") || control->inherits("QCheckBox")
                          ? QPoint(8, control->height() / 2)
                          : control->rect().center();
    QTest::mouseClick(control, Qt::LeftButton, {}, at);
}

void AppFixture::Type(const QWidget& parent, int controlId, const QString& text)
{
    auto* const control = FindControl<QWidget>(&parent, controlId);
    ASSERT_NE(nullptr, control) << controlId;
    TypeOver(*control, text);
}

void AppFixture::TypeOver(QWidget& field, const QString& text)
{
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

QString AppFixture::Text(const QWidget& parent, int controlId)
{
    if (const auto* const edit = FindControl<QLineEdit>(&parent, controlId)) {
        return edit->text();
    }
    if (const auto* const edit = FindControl<QPlainTextEdit>(&parent, controlId)) {
        return edit->toPlainText();
    }
    if (const auto* const label = FindControl<QLabel>(&parent, controlId)) {
        return label->text();
    }
    if (const auto* const button = FindControl<QAbstractButton>(&parent, controlId)) {
        return button->text();
    }
    ADD_FAILURE() << "no control " << controlId;
    return {};
}

#include "AppFixture.moc"
