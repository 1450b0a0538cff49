#include "design/screens/frmInputMC.h"

#include <QLineEdit>
#include <QPushButton>

#include "drawing/screens/drawing_box.h"
#include "drawing/screens/frmOpenPicture.h"
#include "session/app_state.h"
#include "ui/command_buttons.h"
#include "ui/guard.h"
#include "ui/text.h"

namespace kalvane {
namespace {
constexpr QSize kPictureSize(380, 317);  // the shape of the drawing's frame
constexpr std::size_t kNameSlot = 2;
constexpr std::size_t kDrawingSlot = 3;
constexpr std::size_t kStoredDrawingSlot = 4;  // where the row of a type has it
}  // namespace

frmInputMC::frmInputMC(const QString& title, FieldSlots& slots, QWidget* parent)
    : EntryForm(QStringLiteral("frmInputMC"), title,
                {{.name = QStringLiteral("Text1(0)"),
                  .caption = QStringLiteral("门窗名称:"),
                  .slot = kNameSlot,
                  .column = QStringLiteral("名称")},
                 {.name = QStringLiteral("Text1(1)"),
                  .caption = QStringLiteral("门窗图位置:"),
                  .slot = kDrawingSlot,
                  .column = QStringLiteral("图号")}},
                slots, parent),
      slots_(slots),
      picture_(new DrawingBox(QStringLiteral("PicMC"), this)) {
    Box(1)->setReadOnly(true);
    Box(1)->setToolTip(QStringLiteral("图库中的图号，由“打开门窗图”选取"));
    QPushButton* load = MakeButton("CmdLoadMC", QStringLiteral("打开门窗图 &O"), this);
    load->setAutoDefault(false);
    picture_->setFixedSize(kPictureSize);
    AddControl(load);
    AddControl(picture_);
    OnSignal(load, &QPushButton::clicked, this, [this] { ChooseDrawing(); });
}

void frmInputMC::Show(const WindowType& type) {
    Fill({ToQt(type.name), ToQt(type.drawing)});
    ShowDrawing();
}

bool frmInputMC::Input(const std::function<void(const WindowType&)>& save) {
    return Run([&] {
        slots_[kStoredDrawingSlot] = slots_[kDrawingSlot];
        save({slots_[kNameSlot], slots_[kDrawingSlot]});
    });
}

void frmInputMC::ChooseDrawing() {
    if (frmOpenPicture(this).exec() != Accepted) return;
    Box(1)->setText(ToQt(slots_[0]));
    ShowDrawing();
}

void frmInputMC::ShowDrawing() {
    picture_->Clear();
    if (Box(1)->text().isEmpty()) return;
    picture_->ShowFromLibrary(App().Main(), FromQt(Box(1)->text()), DrawingBox::Names::Shown,
                              DrawingBox::Extent::Outer);
}

}  // namespace kalvane
