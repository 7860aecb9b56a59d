#pragma once
#include <QLabel>
#include <QSlider>

namespace vermo {

/// The volume slider: a track on which the picture `ImgCurseur` stands, loudest on top. A press anywhere
/// takes the cursor there; arrows, page keys, Home and End move it as in any slider. `valueChanged` tells
/// each change that the person makes.
class LblVol : public QSlider {
    Q_OBJECT
  public:
    explicit LblVol(QWidget* parent);

    /// Shows the volume, 0 to 100, telling nobody.
    void montrer(float VolumeLecture);

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void sliderChange(SliderChange changement) override;

  private:
    void suivre(double y);

    QLabel* ImgCurseur_;
    double prise_ = 0; ///< from the cursor's top to the mouse, pixels
};

} // namespace vermo
