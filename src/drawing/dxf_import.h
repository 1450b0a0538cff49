#pragma once

#include <filesystem>
#include <streambuf>
#include <string>
#include <vector>

namespace kalvane {

class CPictire;

/// What came of a DXF file.
struct DxfSummary {
    struct Kind {
        std::string name;  ///< as in the file
        int count = 0;
    };

    int lines = 0;
    int rectangles = 0;
    int dimensions = 0;
    int texts = 0;
    /// Entities of the file that are not in the drawing, the commonest kind first: kinds that are not taken,
    /// items beyond a full kind, and entities that a neighbour swallowed.
    std::vector<Kind> passedOver;

    int PassedOverCount() const;
};

/// Reads an AutoCAD drawing in text form in place of everything `picture` holds: LINE as a line, LWPOLYLINE
/// as the rectangle through its first and third vertex, DIMENSION as a dimension mark and a text.
///
/// This is a scanner for a few words in a stream of tokens, which end at a line end or a comma: after the
/// word ENTITIES, wherever one of the three names stands, an entity begins, also when it is the name of a
/// layer. A line ends with its group 21, a dimension with its group 24: what comes later is lost. A polyline
/// ends with its fourth vertex, which may be one of the entities behind it. Coordinates are taken as they
/// stand, so a drawing whose y axis points up arrives upside down. Texts may be GBK or UTF-8.
///
/// Throws FileError with `picture` unchanged when the file cannot be read, and NumericError for a coordinate
/// that is no number; what was read before it stays in `picture` then. A file that ends within an entity
/// loses that entity, one without ENTITIES gives an empty drawing.
DxfSummary ImportDxf(const std::filesystem::path& path, CPictire& picture);

/// The same from an open file that can be read twice.
DxfSummary ImportDxf(std::streambuf& file, CPictire& picture);

/// The summary as one line for the operator.
std::string DxfPrompt(const DxfSummary& summary);

}  // namespace kalvane
