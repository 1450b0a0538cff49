#pragma once

#include "drawing/desk_screen.h"
#include "drawing/drawing_desk.h"
#include "drawing/screens/desk_files.h"
#include "drawing/status_bar.h"
#include "drawing/text_form.h"
#include "ui/message_notice.h"
#include "ui/screen.h"

class QLabel;
class QPushButton;
class QStatusBar;

namespace kalvane {

class CommandBox;
class DeskButtons;
class DrawingCanvas;

/// The drawing desk: canvas, tools, command line and status bar.
class FrmDraw final : public Screen, private DeskScreen, private StatusBar, private TextForm {
    Q_OBJECT

  public:
    explicit FrmDraw(QWidget* parent);

    const DrawingDesk& Desk() const { return desk_; }

  protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void MakeStatusBar();
    void LayOut();
    void Connect();

    /// Runs what the operator asked for, guarded, and shows what became of the desk.
    void Do(const std::function<void()>& work);
    void ShowState();

    void SetTitle(const std::string& title) override;
    void ChooseDrawing() override;
    void SaveDrawing() override;
    void PrintDrawing() override;
    void Quit() override;
    void ShowPrompt(const std::string& text) override;
    void ShowCoordinates(const std::string& text) override;
    std::string AskText() override;

    MessageNotice notice_;
    DrawingCanvas* pic_;
    CommandBox* txtCommand_;
    DeskButtons* buttons_;
    QStatusBar* sbar_;
    QLabel* prompt_;
    QLabel* coordinates_;
    QPushButton* recover_;
    DrawingDesk desk_;
    DeskFiles files_;
    bool gridShown_ = false;
};

}  // namespace kalvane
