#pragma once

#include <string>
#include <string_view>

namespace kalvane {

class CPictire;

// The text of a drawing file (.MC): sections "Line", "Rec", "Dir", "Dim", "String", each a keyword line
// followed by its records, every value on a line of its own, lines ended by CR LF. A number has one leading
// blank unless it is negative and one trailing blank. There is no header. On the disk the text is GBK; a
// UTF-8 file is read as well.

/// The text of a drawing, in UTF-8. Kinds without items have no section, arcs never have one.
std::string McText(const CPictire& picture);

/// Adds the items of a file's text (UTF-8) to `picture`.
///
/// Tokens end at a line end (CR LF, LF or CR) or a comma; blanks around them do not count. So a text item
/// that equals a keyword starts a section, and the rest of one with a comma is taken for the next number. A
/// record that is not complete is dropped. "Circle" is skipped wherever it occurs.
///
/// Throws NumericError for a token that is no number where one is expected, and for the keyword "Arc", which
/// no drawing file of this system holds; what was read before stays in `picture`.
void ReadMcText(std::string_view utf8, CPictire& picture);

}  // namespace kalvane
