// SPDX-License-Identifier: MIT
// A small curve of the last minutes' transfer.
#ifndef ORBISDIAL_RATECURVE_H
#define ORBISDIAL_RATECURVE_H

#include <QVector>
#include <QWidget>

class RateCurve : public QWidget {
    Q_OBJECT

public:
    explicit RateCurve(QWidget* parent = nullptr);

    // Bytes a second in the second that ended now.
    void add(double received, double sent);
    void clear();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Sample {
        double received;
        double sent;
    };

    QPolygonF line(double Sample::*member, double top) const;

    QVector<Sample> m_Samples;  // the newest last
};

#endif
