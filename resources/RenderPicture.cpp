// Renders a drawing of resources/images to a picture: RenderPicture IN.svg OUT.png SCALE
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: RenderPicture IN.svg OUT.png SCALE\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(arguments[1]);
    const double scale = arguments[3].toDouble();
    if (!renderer.isValid() || scale <= 0) {
        std::fprintf(stderr, "%s cannot be rendered\n", qPrintable(arguments[1]));
        return 1;
    }
    QImage picture(renderer.defaultSize() * scale, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    painter.end();
    return picture.save(arguments[2]) ? 0 : 1;
}
