#pragma once

#include "drawing/cpictire.h"

namespace kalvane {

/// The drawing as the screens outside the editor hold it. Whoever opens a drawing on a shared one ends with
/// ClearData, since opening adds to what is held. Arguments and errors are those of CPictire.
class MCPicture {
  public:
    explicit MCPicture(Notice& notice) : picture_(notice) {}

    /// Does nothing; a place in the order of operations that callers count on.
    void DrawMC() const {}

    /// Paints the whole frame stretched over `box`, with the text items.
    void OutMC(PaintTarget& target, const Box& box) const { picture_.PrintPic(target, kFrame, box); }

    void OpenFileMC(const std::filesystem::path& path) { picture_.Open_File(path); }
    void OpenFileEX(Connection& connection, std::string_view number) {
        picture_.OpenFileEX(connection, number);
    }
    void SaveFileEx(Connection& connection, std::string_view number, std::string_view name) const {
        picture_.SaveFileEx(connection, number, name);
    }
    /// The component sheet and the bare drawing page.
    void PrintTMP(PageTarget& page, Connection& connection, const ComponentSheet& sheet) {
        picture_.PrintTemplate01(page, connection, sheet);
    }
    void PrintTMP02(PaintTarget& page, Connection& connection, std::string_view number,
                    std::span<const PageLabel> labels) {
        picture_.PrintTemp02(page, connection, number, labels);
    }

    void ClearData() { picture_.ClearData(); }
    void GetStrings(std::span<float> xs, std::span<float> ys, std::span<std::string> texts) const {
        picture_.GetStrings(xs, ys, texts);
    }

    /// Size of the frame, whatever the drawing holds.
    float GetHeight() const { return kFrameHeight; }
    float GetWidth() const { return kFrameWidth; }

    std::int16_t GetStringCount() const { return picture_.GetStringCount(); }

    /// As OutMC without the text items.
    void OutMCNoStr(PaintTarget& target, const Box& box) const { picture_.OutMCNoStr(target, kFrame, box); }

    /// The text items, for callers that need no arrays.
    const PrimitiveList<TextItem>& Strings() const { return picture_.Strings(); }

  private:
    CPictire picture_;
};

}  // namespace kalvane
