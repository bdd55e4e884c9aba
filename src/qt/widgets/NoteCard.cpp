#include "qt/widgets/NoteCard.h"

#include "controls/ZVCollectionNoteView.h"
#include "qt/canvas/RasterPainter.h"

#include <QCache>
#include <QImage>
#include <QPainter>

#include <cmath>

namespace zarvil::qt {

namespace {

/// While a window is resized every frame brings a new size; the older ones go.
constexpr int cachedCards = 16;

struct CardSize {
    double width;
    double height;
    double scale;
    friend bool operator==(const CardSize&, const CardSize&) = default;
    friend size_t qHash(const CardSize& size, size_t seed = 0) {
        return qHashMulti(seed, size.width, size.height, size.scale);
    }
};

QImage drawnCard(const CardSize& size) {
    QImage image(static_cast<int>(std::ceil(size.width * size.scale)),
                 static_cast<int>(std::ceil(size.height * size.scale)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(size.scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    ZVCollectionNoteView note;
    note.setFrame({0, 0, size.width, size.height});
    RasterPainter().paint(painter, {size.width, size.height}, Orientation::YUp,
                          [&note](Canvas& canvas) { note.drawRect(canvas); });
    return image;
}

} // namespace

void paintNoteCard(QPainter& painter, const QRectF& bounds, qreal devicePixelRatio) {
    static QCache<CardSize, QImage> cards(cachedCards);
    if (bounds.isEmpty() || devicePixelRatio <= 0)
        return;
    const CardSize size{bounds.width(), bounds.height(), devicePixelRatio};
    if (const QImage* card = cards.object(size)) {
        painter.drawImage(bounds.topLeft(), *card);
        return;
    }
    const QImage card = drawnCard(size);
    painter.drawImage(bounds.topLeft(), card);
    cards.insert(size, new QImage(card));
}

} // namespace zarvil::qt
