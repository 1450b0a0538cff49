#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <iostream>
#include <utility>

#include "app/screens/MDIMain.h"
#include "app/screens/frmLogin.h"
#include "app/store_setup.h"
#include "design/formula_export.h"
#include "drawing/mcpicture.h"
#include "drawing/screens/window_picture.h"
#include "numeric/error.h"
#include "optimise/plan.h"
#include "optimise/plan_file.h"
#include "optimise/run.h"
#include "output/order_lists.h"
#include "output/tally_tables.h"
#include "platform/settings_store.h"
#include "project/project_list.h"
#include "project/project_windows.h"
#include "project/window_list.h"
#include "session/app_state.h"
#include "ui/application.h"
#include "ui/dialogs.h"
#include "ui/message_notice.h"
#include "ui/report_list.h"
#include "ui/screen_memory.h"
#include "ui/text.h"

// Takes the sample order through the real screens and leaves plans and pictures in the folder named on the
// command line.

using namespace kalvane;

namespace {

constexpr const char* kProject = "示例工程";
constexpr int kPatienceMilliseconds = 60000;

std::filesystem::path out;

/// The visible screen of that name, wherever it stands.
QWidget* Shown(const QString& name) {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == name && widget->isVisible()) return widget;
    }
    return nullptr;
}

/// The child of `screen` with that name; the program ends when there is none.
template <typename Widget>
Widget* Control(QWidget* screen, const char* name) {
    auto* control = screen->findChild<Widget*>(QString::fromLatin1(name));
    if (control == nullptr) qFatal("%s has no %s", qPrintable(screen->objectName()), name);
    return control;
}

void Press(QWidget* screen, const char* button) {
    Control<QAbstractButton>(screen, button)->click();
}

/// Closes a screen without its question about what was typed.
void Leave(QWidget* screen) {
    qobject_cast<QDialog*>(screen)->done(QDialog::Rejected);
}

void TakePicture(QWidget* screen, const QString& name) {
    QApplication::processEvents();
    screen->grab().save(ToQt((out / (FromQt(name) + ".png")).string()));
}

/// Runs `action` on the screen of that name once it is shown, also while it runs modally.
void WhenShown(const QString& name, const std::function<void(QWidget*)>& action) {
    auto* timer = new QTimer(qApp);
    timer->setInterval(10);
    auto patience = std::make_shared<QElapsedTimer>();
    patience->start();
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        if (patience->elapsed() > kPatienceMilliseconds) qFatal("%s was not shown", qPrintable(name));
        QWidget* screen = Shown(name);
        if (screen == nullptr) return;
        timer->stop();
        timer->deleteLater();
        action(screen);
    });
    timer->start();
}

/// Where the preview saves its PDF.
QString pdfFile;
/// What the next command opens.
QString openedFile;

/// Nothing else on this road asks or warns; a box that comes up all the same must not wait for an answer.
class NoDialogs : public Dialogs {
  public:
    void Message(QWidget*, const QString& text, const QString&, NoticeIcon) override { Stop(text); }
    bool AskYesNo(QWidget*, const QString& text, const QString&, Answer) override { return Stop(text); }
    bool AskOkCancel(QWidget*, const QString& text, const QString&, Answer) override { return Stop(text); }
    std::optional<QString> InputText(QWidget*, const QString&, const QString& prompt,
                                     const QString&) override {
        Stop(prompt);
        return std::nullopt;
    }
    QString OpenFileName(QWidget*, const QString& purpose, const QString&) override {
        if (openedFile.isEmpty()) Stop(purpose);
        return std::exchange(openedFile, {});
    }
    QString SaveFileName(QWidget*, const SaveRequest& request) override {
        if (pdfFile.isEmpty()) Stop(request.purpose);
        return std::exchange(pdfFile, {});
    }

  private:
    static bool Stop(const QString& text) {
        qFatal("a dialog came up: %s", qPrintable(text));
        return false;
    }
};

void LogIn() {
    WhenShown("frmLogin", [](QWidget* screen) {
        Control<QComboBox>(screen, "cboUsrNm")->setCurrentText("Admin");
        QTest::keyClicks(Control<QLineEdit>(screen, "txtPassword"), "admin888");
        TakePicture(screen, "frmLogin");
        Press(screen, "cmdOK");
    });
    frmLogin().exec();
    if (!App().loginOK) throw Error("登录没有成功。");
}

/// Presses a print command and saves what the preview shows.
void SavePdf(QWidget* screen, const char* command, const std::string& name) {
    WhenShown("frmPreview", [name](QWidget* preview) {
        pdfFile = ToQt((out / (name + ".pdf")).string());
        Press(preview, "CmdPdf");
        TakePicture(preview, "preview-" + ToQt(name));
        preview->close();
    });
    Press(screen, command);
}

/// The contract on the screen and on paper, alone and with the list of windows behind it.
void ShowContract(QWidget* projects) {
    WhenShown("frmGCHT", [](QWidget* screen) {
        TakePicture(screen, "frmGCHT");
        SavePdf(screen, "CmdPrint", "contract");
        SavePdf(screen, "CmdPrintAll", "contract-and-windows");
        Leave(screen);
    });
    Press(projects, "CmdOpenHT");
}

void ShowCopies(QWidget* projects) {
    WhenShown("frmCopyGC", [](QWidget* screen) {
        Control<ReportList>(screen, "Lvw2")->SelectRow(0);
        Press(screen, "CmdSelect");
        TakePicture(screen, "frmCopyGC");
        Leave(screen);
    });
    Press(projects, "CmdCopyGCMC");
}

/// From the main screen to the opened sample project.
QWidget* OpenSample(MDIMain& frame) {
    frame.findChild<QAction*>("mnuProject")->trigger();
    QWidget* projects = Shown("frmMCGCGL");
    auto* list = Control<ReportList>(projects, "Lvw");
    for (int row = 0; row < list->RowCount(); ++row) {
        if (list->Text(row, 0) == kProject) list->SelectRow(row);
    }
    ShowContract(projects);
    ShowCopies(projects);
    Press(projects, "CmdOpen");
    TakePicture(&frame, "MDIMain");
    QWidget* windows = Shown("frmOpenGC");
    TakePicture(windows, "frmOpenGC");
    return windows;
}

void ShowNewWindow(QWidget* windows) {
    WhenShown("frmAddGCMC", [](QWidget* screen) {
        auto* tree = Control<QTreeWidget>(screen, "Tvw");
        QTreeWidgetItem* type = tree->topLevelItem(0);
        while (type->childCount() > 0) {
            type->setExpanded(true);
            type = type->child(type->childCount() - 1);
        }
        tree->scrollToItem(type);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(type).center());
        const char* const values[] = {"1800", "1500", "750", "1050", "450", "1050", "1000", "500"};
        const int labels = Control<ReportList>(screen, "LvwBZ")->RowCount();
        for (int label = 0; label < labels; ++label) {
            auto* box = Control<QLineEdit>(screen, "TxtBZ");
            box->selectAll();
            QTest::keyClicks(box, values[static_cast<std::size_t>(label) % std::size(values)]);
            QTest::keyClick(box, Qt::Key_Return);
        }
        TakePicture(screen, "frmAddGCMC");
        Press(screen, "Command2");
    });
    Press(windows, "CmdAdd");
}

/// The bay window of the sample, with one of its members.
void ShowComposite(QWidget* windows) {
    auto* list = Control<ReportList>(windows, "Lvw");
    list->SelectRow(list->RowCount() - 2);
    WhenShown("frmAddGCZHMC", [](QWidget* screen) {
        auto* members = Control<QTreeWidget>(screen, "Tvw1");
        members->setCurrentItem(members->topLevelItem(0));
        TakePicture(screen, "frmAddGCZHMC");
        members->setCurrentItem(members->topLevelItem(1));
        TakePicture(screen, "frmAddGCZHMC-member");
        Leave(screen);
    });
    Press(windows, "CmdEdit");
    list->SelectRow(0);
}

/// The wizard from its second step to the plan of the first scheme.
void RunWizard(QWidget* windows) {
    WhenShown("frmCreate02", [](QWidget* step2) {
        WhenShown("frmCreate03", [](QWidget* step3) {
            Press(step3, "CmdMoveAll");
            TakePicture(step3, "frmCreate03");
            WhenShown("frmResult", [](QWidget* result) {
                TakePicture(result, "frmResult");
                Control<QTabWidget>(result, "Tab1")->setCurrentIndex(2);
                TakePicture(result, "frmResult-bars");
                SavePdf(result, "cmdPrint", "plan-table");
                SavePdf(result, "cmdPrint1", "plan-totals");
                SavePdf(result, "CmdPrintCut", "plan-bars");
                SavePdf(result, "CmdLabels", "plan-labels");
                Press(result, "CmdExit");
            });
            Press(step3, "CmdNext");
            step3->close();
        });
        Press(step2, "CmdMoveAll");
        Press(step2, "CmdNext");
        step2->close();
    });
    Press(windows, "cmdYH");
}

/// Opens a screen by its entry of the main screen, takes its picture, and closes it after `work`.
void ShowModal(MDIMain& frame, const char* entry, const QString& name,
               const std::function<void(QWidget*)>& work = {}) {
    WhenShown(name, [=](QWidget* screen) {
        if (work) work(screen);
        TakePicture(screen, name);
        Leave(screen);
    });
    frame.findChild<QAction*>(QLatin1String(entry))->trigger();
}

/// The catalogue with the profiles of a series, and one of them as it is typed in.
void ShowCatalogue(MDIMain& frame) {
    frame.findChild<QAction*>("mnuDatabase")->trigger();
    QWidget* catalogue = Shown("frmDatabase");
    auto* tree = Control<QTreeWidget>(catalogue, "Tvw");
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    Control<ReportList>(catalogue, "Lvw")->SelectRow(1);
    TakePicture(catalogue, "frmDatabase");
    WhenShown("frmInputXCXG", [](QWidget* form) {
        TakePicture(form, "frmInputXCXG");
        Leave(form);
    });
    Press(catalogue, "CmdEdit2");
    SavePdf(catalogue, "CmdPrint", "catalogue");
    Leave(catalogue);
}

/// The drawing desk with a drawing of the library.
void ShowDesk(MDIMain& frame) {
    frame.findChild<QAction*>("mnuDrawPicture")->trigger();
    QWidget* desk = Shown("FrmDraw");
    WhenShown("frmOpenPicture", [](QWidget* library) {
        auto* drawings = Control<ReportList>(library, "lvw");
        drawings->SelectRow(drawings->RowCount() / 2);
        TakePicture(library, "frmOpenPicture");
        Press(library, "OKButton");
    });
    Press(desk, "CmdOpenEx");
    Press(desk, "CmdDim");
    TakePicture(desk, "FrmDraw");
    desk->close();
}

/// The first node of that name, selected and in sight.
void ChooseNode(QWidget* screen, const QString& name) {
    auto* tree = Control<QTreeWidget>(screen, "Tvw");
    const auto nodes = tree->findItems(name, Qt::MatchRecursive | Qt::MatchExactly);
    if (nodes.isEmpty()) qFatal("no node %s", qPrintable(name));
    tree->setCurrentItem(nodes.front());
    tree->scrollToItem(nodes.front());
}

/// What an import of the types that were exported would do.
void ShowImport(QWidget* types) {
    const std::filesystem::path file = out / "formulas.xlsx";
    SaveFormulaGrid(FormulaGrid(App().Main()), file);
    ChooseNode(types, QString::fromUtf8("PK60平开窗"));
    openedFile = ToQt(file.string());
    WhenShown("frmImportPreview", [](QWidget* preview) {
        TakePicture(preview, "frmImportPreview");
        Leave(preview);
    });
    Press(types, "CmdInputGS");
}

/// The window types and the designer of one of them, with two rows that are not right.
void ShowDesigner(MDIMain& frame) {
    frame.findChild<QAction*>("mnuDesign")->trigger();
    QWidget* types = Shown("FrmDesign");
    ChooseNode(types, QString::fromUtf8("内开内倒窗"));
    TakePicture(types, "FrmDesign");
    WhenShown("FrmMCGS", [](QWidget* designer) {
        ChooseNode(designer, QString::fromUtf8("PK60平开系列"));
        auto* profiles = Control<ReportList>(designer, "LvwXC");
        const char* const rows[][2] = {{"pk60-04", "B-2*60+2*8+6"}, {"PK60-04", "H-2*kh1+2*8+6"}};
        for (int i = 0; i < 2; ++i) {
            profiles->SelectRow(2 + i);
            Q_EMIT profiles->itemDoubleClicked(profiles->currentItem(), 0);
            Control<QLineEdit>(designer, "Text1(1)")->setText(rows[i][0]);
            Control<QLineEdit>(designer, "Text1(3)")->setText(rows[i][1]);
            if (i == 1) TakePicture(designer, "FrmMCGS");
            Press(designer, "CmdOk");
        }
        WhenShown("frmFormulaCheck", [](QWidget* check) {
            TakePicture(check, "frmFormulaCheck");
            Leave(check);
        });
        Press(designer, "CmdCheck");
        Leave(designer);
    });
    Press(types, "CmdDesignMC");
    ShowImport(types);
    Leave(types);
}

void ShowManualList(MDIMain& frame) {
    WhenShown("frmYHMain", [](QWidget* module) {
        WhenShown("frmHandup", [](QWidget* screen) {
            Control<QLineEdit>(screen, "TxtName")->setText("60框");
            const char* const rows[][2] = {{"2000", "30"}, {"1500", "44"}, {"820", "65"}, {"655", "40"}};
            for (const auto& [length, count] : rows) {
                Control<QLineEdit>(screen, "TxtCD")->setText(length);
                Control<QLineEdit>(screen, "TxtSL")->setText(count);
                Press(screen, "CmdAdd");
            }
            TakePicture(screen, "frmHandup");
            Leave(screen);
        });
        module->findChild<QAction*>("Toolbar1(4)")->trigger();
        module->close();
    });
    frame.findChild<QAction*>("mnuYouhua")->trigger();
}

void Choose(QWidget* screen, const char* list, const char* text) {
    Control<QComboBox>(screen, list)->setCurrentText(QString::fromUtf8(text));
}

/// A window of the sample project, chosen by its name for a wind check.
void TakeWindow(QWidget* screen, const QString& name) {
    WhenShown("frmFYGC", [name](QWidget* choice) {
        auto* windows = Control<ReportList>(choice, "Lvw");
        for (int row = 0; row < windows->RowCount(); ++row) {
            if (windows->Text(row, 0) == name) windows->SelectRow(row);
        }
        Press(choice, "OKButton");
    });
    Press(screen, "CmdQZGC");
}

/// Both wind checks, each to its report as PDF.
void ShowWindChecks(MDIMain& frame) {
    App().windCheckOption = 1;
    ShowModal(frame, "mnuFYJH", "frmFY", [](QWidget* screen) {
        Choose(screen, "cmbDMCCD", "B类");
        Choose(screen, "cmbJZGD", "30米");
        TakeWindow(screen, "C17");
        WhenShown("frmFyResult", [](QWidget* result) {
            TakePicture(result, "frmFyResult");
            SavePdf(result, "Command1", "wind-sliding");
            Press(result, "OKButton");
        });
        Press(screen, "Command1");
    });
    App().windCheckOption = 0;
    ShowModal(frame, "mnuFYJH", "FrmMainFY01", [](QWidget* base) {
        Choose(base, "Combo3", "30");
        Choose(base, "Combo1", "一般高层建筑物");
        Choose(base, "Combo2", "B类");
        Control<QLineEdit>(base, "Text6")->setText("1.64");
        WhenShown("frmFY01", [](QWidget* detail) {
            TakeWindow(detail, "C1");
            TakePicture(detail, "frmFY01");
            WhenShown("FrmResultFY01", [](QWidget* result) {
                TakePicture(result, "FrmResultFY01");
                SavePdf(result, "CmdPrint", "wind-full");
                WhenShown("frmFY01", [](QWidget* again) { Press(again, "CancelButton"); });
                Press(result, "OKButton");
            });
            Press(detail, "OKButton");
        });
        Press(base, "CmdNext");
    });
}

/// The sheets of all windows.
void ShowSheets(QWidget* windows) {
    WhenShown("FrmGJB", [](QWidget* sheet) {
        TakePicture(sheet, "FrmGJB");
        SavePdf(sheet, "CmdPrintAll", "sheets");
        Control<QCheckBox>(sheet, "chkBL")->setChecked(true);
        SavePdf(sheet, "CmdPrint", "sheet-in-proportion");
        Press(sheet, "CmdExit");
    });
    Control<ReportList>(windows, "Lvw")->SelectRow(1);
    Press(windows, "CmdPrint");
}

void SaveTable(const FileTable& table, const std::string& name) {
    SaveTableText({table}, TabPlace::BehindEachCell, out / (name + ".txt"));
    TableWorkbook({table}).Save(out / (name + ".xlsx"));
}

void SaveOutput(OutputView view, const std::string& name) {
    RebuildForOutput(App().Main(), view, {}, SharedFieldSlots(), App().tally);
    SaveTable(*LoadOutput(App().Main(), view), name);
}

/// Material, prices and settlement of the whole order, each as PDF, text and workbook, and the short table.
void ShowTotals(QWidget* windows) {
    WhenShown("frmTJJS", [](QWidget* totals) {
        Press(totals, "CmdSelectAll");
        Press(totals, "CmdTJ");
        SavePdf(totals, "CmdTJ01", "material");
        SaveOutput(OutputView::CmdOut1, "material");
        WhenShown("frmSZZJ", [](QWidget* fees) {
            const char* const prices[] = {"35", "12.5", "8", "5"};
            for (std::size_t i = 0; i < std::size(prices); ++i) {
                Control<QLineEdit>(fees, ("Text1(" + std::to_string(i) + ")").c_str())->setText(prices[i]);
            }
            TakePicture(fees, "frmSZZJ");
            Press(fees, "OKButton");
        });
        SavePdf(totals, "CmdTJ02", "prices");
        SaveOutput(OutputView::cmdOut2, "prices");
        SavePdf(totals, "CmdTJ03", "details");
        SaveOutput(OutputView::cmdOut3, "details");
        WhenShown("frmJSJE", [](QWidget* prices) {
            Control<QLineEdit>(prices, "Text1(0)")->setText("420");
            Control<QLineEdit>(prices, "Text1(1)")->setText("365");
            TakePicture(prices, "frmJSJE");
            Press(prices, "OKButton");
        });
        Press(totals, "CmdJS");
        SavePdf(totals, "CmdJS01", "areas");
        SaveOutput(OutputView::cmdOutTJB, "areas");
        SavePdf(totals, "CmdJS02", "settlement");
        SaveOutput(OutputView::cmdOutZJB, "settlement");
        SavePdf(totals, "CmdCGD", "buying");
        SaveTable(BuyingList(App().Main()), "buying");
        SavePdf(totals, "CmdBLD", "glass");
        SaveTable(GlassList(App().Main(), ListWindows(App().Main(), App().currentProjectId)), "glass");
        WhenShown("frmTJMX", [](QWidget* rows) {
            auto* tally = Control<ReportList>(rows, "LvwTJ");
            tally->SelectRow(1);
            Q_EMIT tally->DoubleClicked();
            TakePicture(rows, "frmTJMX");
            Leave(rows);
        });
        Press(totals, "CmdMX");
        WhenShown("FrmEasyGJBReport", [](QWidget* report) {
            TakePicture(report, "FrmEasyGJBReport");
            SavePdf(report, "Command1", "short-table");
            Press(report, "CmdExit");
        });
        Press(totals, "CmdGJB");
        TakePicture(totals, "frmTJJS");
        Leave(totals);
    });
    Press(windows, "CmdTotal");
}

void SavePlan(const std::string& name) {
    const std::string today = FromQt(QDate::currentDate().toString("yyyy-MM-dd"));
    const PlanOutput plan = LoadPlanOutput(App().Main(), kProject, today);
    SavePlanText(plan, out / (name + ".txt"));
    PlanWorkbook(plan).Save(out / (name + ".xlsx"));
}

void SaveWindowPictures() {
    MessageNotice notice(nullptr);
    for (const WindowEntry& window : ListWindows(App().Main(), App().currentProjectId)) {
        MCPicture picture(notice);
        picture.OpenFileEX(App().Main(), DrawingOfWindow(App().Main(), window));
        const std::vector<WindowLabel> labels = PaintedLabels(LoadLabels(App().Main(), window.number));
        const std::string file = "window-" + window.number + "-" + window.name + ".png";
        WindowPictureImage(picture, labels, QSize(950, 794)).save(ToQt((out / file).string()));
    }
}

void Run() {
    CreateMissingStores(App().folder);
    LogIn();
    MDIMain frame;
    frame.Load();
    frame.resize(1280, 800);
    frame.show();
    App().optimise.CLC = 6000;
    App().optimise.LTC = 10;
    App().optimise.CKK = 5;
    App().optimise.YHBL = 0.98F;

    ShowCatalogue(frame);
    ShowDesk(frame);
    ShowDesigner(frame);
    QWidget* windows = OpenSample(frame);
    ShowNewWindow(windows);
    ShowComposite(windows);
    SavePdf(windows, "CmdMCB", "window-list");
    RunWizard(windows);
    SavePlan("plan-scheme-1");
    MessageNotice notice(&frame);
    RunOptimisation(App().Main(), App().optimise, 1, ListMaterials(App().Main()), notice, {});
    SavePlan("plan-scheme-2");
    SaveWindowPictures();
    ShowSheets(windows);
    ShowTotals(windows);
    ShowManualList(frame);
    ShowWindChecks(frame);
    ShowModal(frame, "mnuDatabaseManage", "frmTools", [](QWidget* tools) {
        WhenShown("frmSaveFile", [](QWidget* screen) {
            Control<QLineEdit>(screen, "TxtFileName")->setText("2026年11月");
            TakePicture(screen, "frmSaveFile");
            Leave(screen);
        });
        Press(tools, "CmdBackup");
    });
    ShowModal(frame, "mnuPath", "frmSetting");
    ShowModal(frame, "mnuUserMng", "frmUserMng");
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::cerr << "usage: kalvane-sample FOLDER\n";
        return 1;
    }
    QApplication application(argc, argv);
    PrepareApplication(application);
    NoDialogs dialogs;
    SetDialogs(&dialogs);
    out = std::filesystem::absolute(argv[1]);
    const QTemporaryDir folder;
    App().folder = FromQt(folder.path());
    SettingsStore settings(App().folder / "settings");
    App().settings = &settings;
    UseScreenMemory(&settings, folder.path());
    try {
        Run();
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
    return 0;
}
