#pragma once

#include <QList>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "store/field_slots.h"
#include "ui/entry_screen.h"
#include "ui/number_filter.h"

class QFormLayout;
class QLabel;
class QPushButton;

namespace kalvane {

/// One box of an entry form.
struct EntryBox {
    QString name;      ///< of the control: "Text1(0)"
    QString caption;   ///< before the box
    std::size_t slot;  ///< that takes its text on confirmation
    NumberKeys keys = NumberKeys::Any;
    QString column{};       ///< it is written to, so that a refusal by the store leads back here
    QStringList choices{};  ///< makes it a list; the slot takes the place in it, from "1" on
    bool mayBeEmpty = false;
    int longest = 0;      ///< characters; 0 for any number
    QString complaint{};  ///< said when it is empty, in place of the form's
};

/// A dialog of some boxes, as a table of them: Enter walks from box to box and confirms in the last one, and
/// the first empty box is refused with "数据不能为空！" and takes the focus. On confirmation the boxes go to
/// their slots and no others, and the work of the dialog is done; what that throws is shown and leaves the
/// form open as it was typed, with the focus in the box that is meant. The screen's name, title and boxes are
/// the caller's, so that a dialog of this kind needs no class.
class EntryForm : public EntryScreen {
    Q_OBJECT

  public:
    /// `slots` must outlive the form.
    EntryForm(const QString& name, const QString& title, std::vector<EntryBox> boxes, FieldSlots& slots,
              QWidget* parent);

    /// Texts of the boxes, in their order; of a list the place in it from "1" on.
    void Fill(const QStringList& texts);
    QStringList Texts() const;
    /// A box of text, by its place from 0.
    QLineEdit* Box(qsizetype place) const;

    /// A line under the boxes.
    void AddNote(const QString& text);
    /// The same with a text that follows what is typed.
    void AddNote(std::function<QString()> text);
    /// A control under the boxes; what it holds goes to no slot.
    void AddControl(QWidget* control);
    /// Title of "数据不能为空！"; "提示" if none is given.
    void SetPromptTitle(const QString& title) { promptTitle_ = title; }
    /// What is said in its place.
    void SetPromptText(const QString& text) { promptText_ = text; }
    /// Captions of the two buttons in place of "确定 &Y" and "取消 &C".
    void SetCaptions(const QString& ok, const QString& cancel);

    /// Shows the form until it is cancelled or `save` has ended well; false when cancelled.
    bool Run(const std::function<void()>& save = [] {});

  protected:
    bool HasTypedWork() const override { return Texts() != filled_; }
    /// Brings the notes that follow up to date.
    void FollowNotes();

  private:
    QWidget* MakeControl(const EntryBox& box);
    QLabel* MakeNote();
    static QString TextOf(const QWidget* control);
    void Confirm();
    bool RefuseEmpty();
    /// Shows a refusal and leads to the box that it is about.
    void ShowRefusal(const std::string& text, const std::string& column);

    const std::vector<EntryBox> boxes_;
    FieldSlots& slots_;
    QFormLayout* fields_;
    QList<QWidget*> controls_;
    QStringList filled_;
    QString promptTitle_;
    QString promptText_ = QStringLiteral("数据不能为空！");
    QPushButton* ok_;
    QPushButton* cancel_;
    std::function<void()> save_;
    std::vector<std::pair<QLabel*, std::function<QString()>>> following_;
};

}  // namespace kalvane
