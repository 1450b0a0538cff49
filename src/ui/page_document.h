#pragma once

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QString>
#include <filesystem>
#include <functional>

#include "page/page_record.h"
#include "ui/painter_target.h"

class QPagedPaintDevice;

namespace kalvane {

/// The sheet a document is made for. The margins, in millimetres, bound the printable area, whatever the
/// printer could reach.
struct PageSetup {
    QPageSize::PageSizeId size = QPageSize::A4;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    QMarginsF margins{8, 8, 8, 8};
};

using PaintPages = std::function<void(PageTarget&)>;

/// A painted document, ready to be shown, printed or saved.
class PageDocument {
  public:
    /// Runs `paint` once; what it throws goes to the caller.
    PageDocument(QString title, const PageSetup& setup, const PaintPages& paint);

    const QString& Title() const { return title_; }
    bool IsEmpty() const { return record_.IsEmpty(); }
    int PageCount() const { return static_cast<int>(record_.Pages().size()); }
    /// Size of the whole sheet in twips.
    QSizeF SheetSize() const;

    /// Paints a page, counted from 0, with the sheet's top left at the painter's origin.
    void PaintPage(int page, QPainter& painter, double unitsPerTwip, PainterTarget::Medium medium) const;

    /// Writes all pages, fonts embedded. Throws FileError when the file cannot be written; an existing one
    /// then stays as it was.
    void WritePdf(const std::filesystem::path& path) const { WritePdf(path, 0, PageCount() - 1); }
    /// The same for pages `first` to `last`, counted from 0.
    void WritePdf(const std::filesystem::path& path, int first, int last) const;

    /// Prints pages `first` to `last`, counted from 0. Throws Error when the printer refuses.
    void Print(const QString& printer, int copies, int first, int last) const;

  private:
    QPageLayout Layout() const;
    void PaintOn(QPagedPaintDevice& device, int dotsPerInch, int first, int last) const;

    QString title_;
    PageSetup setup_;
    PageRecord record_;
};

}  // namespace kalvane
