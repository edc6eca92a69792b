#include "windows/diagram_window.h"

DiagramWindow frmDiagram;

DiagramWindow::DiagramWindow() : Window("frmDiagram", "Diagram", 9735, 7545) {
    resizable = true;
    Add(Picture4, "Picture4", -1, nullptr, {120, 420, 7400, 1500});
    Add(Picture1, "Picture1", -1, nullptr, {120, 1920, 7400, 4800});
    Picture1.SetScaleWidth(500);
    Add(Picture2, "Picture2", -1, nullptr, {7520, 1920, 2000, 4800});
    Picture2.SetVisible(false);
    Add(HScroll1, "HScroll1", -1, nullptr, {120, 6780, 7400, 280});
    HScroll1.SetRange(0, 0);
    HScroll1.SetSteps(10, 500);
    Add(Slider2, "Slider2", -1, nullptr, {120, 60, 2400, 320});
    Slider2.SetRange(0, 10);
    Slider2.SetValue(5);
    KeepDesign();
}
