#pragma once

#include <QWidget>

namespace gesturewidget {

// What a document gives out as its view once the real one is gone: a widget that takes
// cursors, coordinates and posted events without any effect and that nothing can show.
class StandInWidget : public QWidget
{
    Q_OBJECT

public:
    StandInWidget();
    ~StandInWidget() override;

    void setVisible(bool visible) override;

protected:
    bool event(QEvent *event) override;
};

} // namespace gesturewidget
