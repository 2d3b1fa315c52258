// qt/tab_order.h - the order in which Tab leads through a form.
#pragma once

class QWidget;

/// Makes it that of the layouts below Root, as they are read.
void Set_Tab_Order(QWidget& Root);
