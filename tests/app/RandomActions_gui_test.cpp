// SPDX-License-Identifier: MIT
// Random but repeatable actions in the window: a hundred by default, or as many as fit into GRISAL_RANDOM_SECONDS
// seconds, for example under the sanitizers.
#include "tests/app/FilesTest.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFrame>
#include <QMouseEvent>
#include <QSpinBox>
#include <QTimer>
#include <QWheelEvent>

#include <memory>
#include <random>

namespace
{

using namespace grisal::test;

constexpr unsigned seed = 20;
constexpr int actions = 100;

class RandomActions : public FilesTest
{
protected:
    void SetUp() override
    {
        FilesTest::SetUp();
        makePictures();
        allowWarnings();
        QObject::connect(&m_boxes, &QTimer::timeout, &m_boxes, [] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                dialog->accept();
            }
        });
        m_boxes.start(2);
    }

    void act()
    {
        switch (below(8)) {
        case 0:
            player->openImage(m_pictures[below(static_cast<int>(m_pictures.size()))]);
            break;
        case 1:
            player->saveImage(inHome(QStringLiteral("saved.") + oneOf({"jpg", "png", "tif", "xyz"})));
            break;
        case 2:
            restart();
            break;
        case 3:
            trigger(*player,
                    qPrintable(oneOf({"actionZoomIn", "actionZoomOut", "actionFitOnWidth", "actionFitOnHeight",
                                      "actionActualPixels", "actionAbout", "actionHelp", "actionPreferences"})));
            break;
        case 4:
            trigger(*player, qPrintable(oneOf({"actionMixer", "actionCurves", "actionSharpen", "actionVignette",
                                               "actionGrain", "actionSplitTone"})));
            break;
        default:
            useControl();
        }
        QCoreApplication::processEvents();
    }

    /// Closes the window and creates it again with the stored settings.
    void restart()
    {
        if (player) {
            trigger(*player, "actionQuit");
        }
        player = std::make_unique<grisal::ui::MainWindow>();
        player->resize(700 + below(300), 560 + below(200));
        player->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(player.get()));
        player->loadBuffer(grisal::test::greyImage(30, 20, 128));
    }

    std::unique_ptr<grisal::ui::MainWindow> player;

private:
    int below(int count) { return std::uniform_int_distribution(0, count - 1)(m_random); }

    QString oneOf(const std::vector<const char *> &texts)
    {
        return QString::fromLatin1(texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))]);
    }

    void makePictures()
    {
        m_pictures << makePicture(QStringLiteral("a.png"), 61, 47) << makePicture(QStringLiteral("b.tif"), 5, 300, 16)
                   << makePicture(QStringLiteral("c.jpg"), 640, 480) << makePicture(QStringLiteral("d.png"), 1, 1)
                   << makePicture(QStringLiteral("e.tif"), 2060, 30) << inHome(QStringLiteral("missing.png"));
        const QByteArray jpeg = contentsOf(m_pictures[2]);
        writeFile(inHome(QStringLiteral("cut.jpg")), jpeg.left(jpeg.size() / 2));
        writeFile(inHome(QStringLiteral("rubbish.jpg")), "no picture");
        m_pictures << inHome(QStringLiteral("cut.jpg")) << inHome(QStringLiteral("rubbish.jpg"));
    }

    void allowWarnings()
    {
        allowWarning(QStringLiteral("Bye bye..."));
        allowWarning(QStringLiteral("MainWindow::saveImage(): Image is Null"));
        allowWarning(QStringLiteral("Cannot open %1").arg(inHome(QStringLiteral("missing.png"))));
        allowWarning(QStringLiteral("No JPEG, PNG or TIFF picture in %1").arg(inHome(QStringLiteral("rubbish.jpg"))));
        allowWarning(QStringLiteral("Premature end of JPEG file (%1)").arg(inHome(QStringLiteral("cut.jpg"))));
        allowWarning(QStringLiteral("Cannot save %1").arg(inHome(QStringLiteral("saved.xyz"))));
    }

    void useControl()
    {
        QList<QWidget *> controls;
        for (QWidget *widget : player->findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->isEnabled() && !widget->objectName().isEmpty()) {
                controls << widget;
            }
        }
        QWidget *control = controls[below(static_cast<int>(controls.size()))];
        if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
            slider->setValue(slider->minimum() + below(slider->maximum() - slider->minimum() + 1));
        } else if (auto *spinBox = qobject_cast<QSpinBox *>(control)) {
            spinBox->setValue(spinBox->minimum() + below(spinBox->maximum() - spinBox->minimum() + 1));
        } else if (auto *box = qobject_cast<QComboBox *>(control); box != nullptr && box->count() > 0) {
            box->setCurrentIndex(below(box->count()));
        } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
            button->click();
        } else {
            useMouse(*control);
        }
    }

    void useMouse(QWidget &widget)
    {
        sendMouse(widget, QEvent::MouseButtonPress);
        for (int i = below(4); i > 0; --i) {
            sendMouse(widget, QEvent::MouseMove);
        }
        sendMouse(widget, below(5) == 0 ? QEvent::MouseButtonDblClick : QEvent::MouseButtonRelease);
        if (below(3) == 0) {
            QTest::keyClick(&widget, Qt::Key_Delete);
        }
        QWheelEvent turn(QPointF(3, 3), widget.mapToGlobal(QPointF(3, 3)), QPoint(), QPoint(0, 120 * (below(9) - 4)),
                         Qt::NoButton, below(2) == 0 ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &turn);
    }

    void sendMouse(QWidget &widget, QEvent::Type type)
    {
        // A quarter of the positions are outside.
        const QPointF place(below(widget.width() + 40) - 20, below(widget.height() + 40) - 20);
        QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }

    std::mt19937 m_random{seed};
    QStringList m_pictures;
    QTimer m_boxes;
};

TEST_F(RandomActions, LeaveAWindowThatOpensAndSaves)
{
    const int seconds = qEnvironmentVariableIntValue("GRISAL_RANDOM_SECONDS");
    QElapsedTimer timer;
    timer.start();
    restart();
    int done = 0;
    while (seconds > 0 ? timer.elapsed() < seconds * 1000 : done < actions) {
        act();
        ASSERT_FALSE(HasFatalFailure());
        ++done;
    }
    std::cout << done << " actions in " << timer.elapsed() / 1000 << " s\n";

    const QString saved = inHome(QStringLiteral("last.png"));
    player->openImage(inHome(QStringLiteral("a.png")));
    player->saveImage(saved);
    EXPECT_EQ(samplesOf(saved).size(), std::size_t{61} * 47 * 3);
}

} // namespace
