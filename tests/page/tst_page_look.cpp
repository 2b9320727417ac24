// SPDX-License-Identifier: MIT
// How the page looks in the host: disabled text that can be read, the list's length, the presets' sign.
#include <QListView>
#include <QScrollBar>

#include "HostStyle.h"
#include "PageFixture.h"
#include "ReadablePalette.h"

using F = PageFixture;

namespace {

QPalette lightPalette() { return {QColor("#efebe7"), QColor("#efebe7")}; }

QPalette darkPalette() {
    QPalette palette(QColor("#31363b"), QColor("#2a2e32"));
    palette.setColor(QPalette::Base, QColor("#1b1e20"));
    return palette;
}

// At the widget's edge, where its text is not; a button's ground differs from top to bottom.
QList<QColor> groundsOf(QWidget* widget) {
    const QImage image = widget->grab().toImage();
    const int x = image.width() - 5;
    return {image.pixelColor(x, 3), image.pixelColor(x, image.height() / 2), image.pixelColor(x, image.height() - 4)};
}

}  // namespace

class tst_page_look : public PageTest {
    Q_OBJECT

private slots:
    void init() {
        PageTest::init();
        f->presets = "<item name='Preset' value=''/>";
        f->library = F::profile("Preset");
    }
    void cleanup() {
        PageTest::cleanup();
        QApplication::setPalette(QPalette());
    }

    void disabledTextCanBeRead_data() {
        const Rows<QPalette> row("palette");
        row("light", lightPalette());
        row("dark", darkPalette());
    }
    void disabledTextCanBeRead() {
        QFETCH(QPalette, palette);
        QApplication::setPalette(ReadablePalette::of(palette));
        f->start(F::profile("Home", "apn='internet' user='someone'"));
        for (const char* const name : {"Home", "Preset"}) {
            f->select(name);
            int seen = 0;
            for (QWidget* widget : f->find("netConnectwdg")->findChildren<QWidget*>()) {
                const bool hasText = qobject_cast<QLineEdit*>(widget) || qobject_cast<QAbstractButton*>(widget);
                if (!hasText || !widget->isVisible() || widget->isEnabled()) continue;
                const QColor text = widget->palette().color(QPalette::Disabled, widget->foregroundRole());
                for (const QColor& ground : groundsOf(widget)) {
                    const double contrast = ReadablePalette::contrast(text, ground);
                    QVERIFY2(contrast >= ReadablePalette::LeastContrast,
                             qPrintable(QString("%1: %2 on %3 is %4 : 1")
                                            .arg(widget->objectName(), text.name(), ground.name())
                                            .arg(contrast)));
                }
                ++seen;
            }
            QVERIFY2(seen >= 10, qPrintable(QString::number(seen)));
        }
    }

    void nothingOverlapsInALowPlace() {
        const QFont before = QApplication::font();
        QFont large = before;
        large.setPointSize(20);
        QApplication::setFont(large);
        f->start(F::profile("Home"));
        f->select("Preset");
        const QWidget* const groups = f->find("NoticePlace")->parentWidget();
        QRegion taken;
        for (const QWidget* child : groups->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->isHidden()) continue;
            QVERIFY2(!taken.intersects(child->geometry()), qPrintable(child->objectName()));
            taken += child->geometry();
        }
        QApplication::setFont(before);
    }

    void listShowsEightAndMarksPresets() {
        QByteArray many;
        for (char c = 'A'; c < 'M'; ++c) many += F::profile(QByteArray(1, c));
        QApplication::setStyle(new HostStyle);
        f->start(many);
        f->combo()->showPopup();
        QAbstractItemView* const list = f->combo()->view();
        QTRY_VERIFY(list->isVisible());
        QVERIFY(list->verticalScrollBar()->isVisible());
        QCOMPARE(list->viewport()->height() / list->sizeHintForRow(0), 8);
        // The names' last letters end far before the sign.
        const auto hasSign = [list](int row) {
            list->scrollTo(list->model()->index(row, 0));
            const QRect place = list->visualRect(list->model()->index(row, 0));
            const QImage end = list->viewport()->grab({place.right() - 24, place.top() + 2, 22, 10}).toImage();
            const QRgb ground = end.pixel(0, 0);
            for (int y = 0; y < end.height(); ++y)
                for (int x = 0; x < end.width(); ++x)
                    if (end.pixel(x, y) != ground) return true;
            return false;
        };
        list->setCurrentIndex(QModelIndex());
        for (int row = 0; row < f->combo()->count(); ++row)
            QCOMPARE(hasSign(row), f->combo()->itemText(row) == "Preset");
    }
};

QTEST_MAIN(tst_page_look)
#include "tst_page_look.moc"
