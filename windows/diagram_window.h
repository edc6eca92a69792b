// frmDiagram: the stratigraphic diagram, the tree beside it and what chooses their basis, scale and sample.
#pragma once
#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/window.h"

struct DiagramWindow : Window {
    DiagramWindow();

    PictureBox Picture4;   // names of the taxa
    PictureBox Picture1;   // the diagram
    PictureBox Picture2;   // the cluster tree
    ScrollBar HScroll1;    // in percent units
    Slider Slider2;        // horizontal scale, 0..10
};

extern DiagramWindow frmDiagram;
