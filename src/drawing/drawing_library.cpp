#include "drawing/drawing_library.h"

#include <initializer_list>

#include "drawing/cpictire.h"
#include "numeric/number.h"
#include "store/command_scope.h"
#include "store/connection.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

/// Inserts the items of one kind: their points and what `rest` gives in SQL, behind an insert up to "(".
template <typename Item, typename Rest>
void InsertItems(Connection& connection, std::string_view insert, const PrimitiveList<Item>& items,
                 Rest rest) {
    for (const Item& item : items) {
        std::string statement(insert);
        for (const Point& point : item.Points()) {
            statement += ShortText(point.x) + "," + ShortText(point.y) + ",";
        }
        connection.Execute(statement + rest(item) + ")");
    }
}

/// A walk over rows whose wanted columns are looked up once, and addressed by their place in that list.
class Rows {
  public:
    Rows(Connection& connection, const std::string& select, std::initializer_list<const char*> columns)
        : cursor_(connection.OpenCursor(select)) {
        for (const char* column : columns) columns_.push_back(cursor_.FieldIndex(column));
    }

    bool More() const { return !cursor_.Eof(); }
    void Next() { cursor_.MoveNext(); }

    std::string Text(std::size_t column) const { return cursor_.Field(columns_[column]).TextOrEmpty(); }

    /// The point whose x and y are that column and the next.
    Point PointAt(std::size_t column) const { return {Number(column), Number(column + 1)}; }

  private:
    float Number(std::size_t column) const { return NarrowToFloat(cursor_.Field(columns_[column]).Number()); }

    Cursor cursor_;
    std::vector<int> columns_;
};

}  // namespace

std::vector<DrawingEntry> ListDrawings(Connection& connection) {
    std::vector<DrawingEntry> entries;
    for (Rows rows(connection, "Select * from 图", {"编号", "图名"}); rows.More(); rows.Next()) {
        entries.push_back({rows.Text(0), rows.Text(1)});
    }
    return entries;
}

std::string NextDrawingNumber(Connection& connection) {
    return GetNextId(connection, "图");
}

bool DrawingExists(Connection& connection, std::string_view number) {
    return RowExists(connection, "图", "编号", number, "N");
}

void SaveNewDrawing(Connection& connection, std::string_view number, std::string_view name,
                    const CPictire& picture) {
    InCommand(connection, [&] {
        connection.Execute("Insert into 图 (编号,图名) values(" + std::string(number) + ",'" +
                           std::string(name) + "')");
        SavePrimitives(connection, number, picture);
    });
}

void DeleteDrawing(Connection& connection, std::string_view number) {
    InCommand(connection, [&] {
        for (const char* statement : {"Delete * from 图 where 编号=", "Delete * from Line where Bn=",
                                      "Delete * from Rectangle where Bn=", "Delete * from Arrow where Bn=",
                                      "Delete * from Dim where Bn=", "Delete * from Strings where Bn="}) {
            connection.Execute(statement + std::string(number));
        }
    });
}

void SavePrimitives(Connection& connection, std::string_view number, const CPictire& picture) {
    InCommand(connection, [&] {
        for (const char* statement : {"Delete * from Line Where Bn=", "Delete * from Rectangle Where Bn=",
                                      "Delete * from Arrow Where Bn=", "Delete * from Dim Where Bn=",
                                      "Delete * from Strings Where Bn=", "Delete * from Arc where Bn="}) {
            connection.Execute(statement + std::string(number));
        }
        const auto bn = [&](const auto&) { return std::string(number); };
        InsertItems(connection, "Insert into Line (x1,y1,x2,y2,Bn) values(", picture.Lines(), bn);
        InsertItems(connection, "Insert into Rectangle (x1,y1,x2,y2,Bn) Values(", picture.Rectangles(), bn);
        InsertItems(connection, "Insert into Arrow (x1,y1,x2,y2,Bn) values(", picture.Arrows(), bn);
        InsertItems(connection, "Insert into Dim (x1,y1,x2,y2,x3,y3,Bn) values(", picture.Dimensions(), bn);
        InsertItems(connection, "Insert into strings (X1,Y1,Chars,Bn) values(", picture.Strings(),
                    [&](const TextItem& item) { return "'" + item.text + "'," + std::string(number); });
        InsertItems(connection, "Insert into Arc (x1,y1,x2,y2,x3,y3,Bn) values(", picture.Arcs(), bn);
    });
}

void LoadPrimitives(Connection& connection, std::string_view number, CPictire& picture) {
    const std::string bn(number);
    const auto twoPoints = {"X1", "Y1", "X2", "Y2"};
    const auto threePoints = {"X1", "Y1", "X2", "Y2", "X3", "Y3"};
    for (Rows rows(connection, "Select * from Line where Bn=" + bn, twoPoints); rows.More(); rows.Next()) {
        picture.AddLine({rows.PointAt(0), rows.PointAt(2)});
    }
    for (Rows rows(connection, "Select * from Rectangle where Bn=" + bn, twoPoints); rows.More();
         rows.Next()) {
        picture.AddRec({rows.PointAt(0), rows.PointAt(2)});
    }
    for (Rows rows(connection, "Select * from Arrow where Bn=" + bn, twoPoints); rows.More(); rows.Next()) {
        picture.AddDir({rows.PointAt(0), rows.PointAt(2)});
    }
    for (Rows rows(connection, "Select * from Dim where Bn=" + bn, threePoints); rows.More(); rows.Next()) {
        picture.AddDim({rows.PointAt(0), rows.PointAt(2), rows.PointAt(4)});
    }
    for (Rows rows(connection, "Select * from Strings where Bn=" + bn, {"X1", "Y1", "Chars"}); rows.More();
         rows.Next()) {
        picture.AddString({rows.PointAt(0), rows.Text(2)});
    }
    for (Rows rows(connection, "Select * from Arc where Bn=" + bn, threePoints); rows.More(); rows.Next()) {
        picture.AddArc({rows.PointAt(0), rows.PointAt(2), rows.PointAt(4)});
    }
}

}  // namespace kalvane
