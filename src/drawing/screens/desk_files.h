#pragma once

#include <QString>
#include <functional>
#include <string>

class QMimeData;
class QWidget;

namespace kalvane {

class DrawingDesk;

/// The file commands of the drawing desk. A drawing file that cannot be read or written is reported in the
/// status bar only; a text that the file's code page does not hold goes to the caller, since it has to be
/// changed.
class DeskFiles {
  public:
    /// Both must outlive this; `prompt` shows a text in the status bar.
    DeskFiles(DrawingDesk& desk, QWidget* screen, std::function<void(const std::string&)> prompt)
        : desk_(desk), screen_(screen), prompt_(std::move(prompt)) {}

    void ChooseToOpen();
    void ChooseToSave();
    void ChooseDxf();

    /// Opens a drawing file or imports a DXF file, by its ending.
    void Open(const QString& file);
    /// The one file of ours that is dragged; empty for anything else.
    static QString DraggedFile(const QMimeData& data);

  private:
    void OpenDrawing(const QString& file);
    void Save(const QString& file);
    void ImportDxfFile(const QString& file);

    DrawingDesk& desk_;
    QWidget* screen_;
    std::function<void(const std::string&)> prompt_;
};

}  // namespace kalvane
