#pragma once

#include <QObject>
#include <QString>
#include <initializer_list>
#include <vector>

#include "wind/form_texts.h"

class QGroupBox;
class QLineEdit;
class QWidget;

namespace kalvane {

/// The controls over the boxes of a form, each with its box's name: text boxes, which let in what their kind
/// does, and lists.
class FormControls : public QObject {
    Q_OBJECT

  public:
    FormControls(FormBoxes boxes, QWidget* screen);

    /// Frames the boxes from `first` to `last`, one below the other with their captions.
    QGroupBox* Group(const QString& title, std::string_view first, std::string_view last);

    FormTexts Texts() const;
    void Show(const FormTexts& texts);

    QWidget* Control(std::string_view name) const;
    QLineEdit* Box(std::string_view name) const;

    /// All of them, in the order of the screen.
    const std::vector<QWidget*>& All() const { return controls_; }

    /// Gives the focus to the next box that can take it; behind the last to `after`.
    void FocusBehind(QWidget* control, QWidget* after) const;

  Q_SIGNALS:
    /// A text or a choice changed, by the operator or by Show.
    void Changed();

  private:
    QWidget* MakeControl(const FormBox& box, QWidget* screen);
    std::size_t Place(std::string_view name) const;

    FormBoxes boxes_;
    std::vector<QWidget*> controls_;
};

}  // namespace kalvane
