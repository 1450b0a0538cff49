#pragma once

#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane::test {

/// A small order: the window type 5, its window C1 (three of 1500 x 1800) and what the catalogue has of it.
/// The fitting S1 is not in the catalogue.
inline void FillOrder(Connection& store) {
    for (const char* row :
         {"窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5,1,'框B','K60','2','B-60')",
          "窗型材 (窗号,编号,名称,规格,数量,计算公式) values(5,2,'框H','K60','2.9','h-h1-60')",
          "窗型钢 (窗号,编号,名称,规格,数量,计算公式) values(5,1,'衬钢','G1','1','B/7')",
          "窗板材 (窗号,编号,名称,数量,长公式,宽公式) values(5,1,'5白玻',2,'B-185','H-183')",
          "窗配件 (窗号,编号,名称,规格,数量,单位) values(5,1,'滑轮','L1','2.5','个  ')",
          "窗配件 (窗号,编号,名称,规格,数量) values(5,2,'锁','S1','2.9')",
          "标注 (MCNUM,MC,schar) Values(1,'H','1800')", "标注 (MCNUM,MC,schar) Values(1,'H1','600')",
          "标注 (MCNUM,MC,schar) Values(1,'B','1500')",
          "型材 (编号,型材名称,型材型号,型材长度,型材线密度,型材吨价格) "
          "values(1,'推拉框','K60',6000,1.25,9000)",
          "型材 (编号,型材名称,型材型号,型材线密度,型材吨价格) values(2,'别的系列','K60',9,9)",
          "型钢 (编号,型钢名称,型钢规格,型钢长度,型钢线密度,型钢吨价格) values(1,'方钢','G1',6000,2,5000)",
          "玻璃 (编号,玻璃名称,玻璃平方单价) values(1,'5白玻',30)",
          "配件 (编号,配件名称,配件规格,配件单位,配件单价) values(1,'单滑轮','L1','个',2.5)",
          "工程门窗 (工程编号,门窗编号,编号,门窗名称,门窗类型,洞口宽,洞口高,樘数)"
          " values(1,5,1,'C1','客厅',1500,1800,3)"}) {
        store.Execute(std::string("Insert into ") + row);
    }
}

/// A window as the list of the project has it; sizes in mm.
inline WindowEntry Window(const char* name, const char* type, const char* number, const char* count = "3",
                          const char* width = "1500", const char* height = "1800") {
    return {name, "客厅", width, height, count, "", "1", type, number};
}

}  // namespace kalvane::test
