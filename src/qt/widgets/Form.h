#pragma once

#include "qt/widgets/Arranger.h"

#include <QCheckBox>
#include <QFrame>
#include <QScrollArea>

#include <vector>

/// What the pages are built of: a page scrolls a column, which holds headings and cards of rows.
/// All spacing follows the font, so that a layout file names parts and no measures.
namespace zarvil::qt {

/// Keeps its layout in a column that is capped in width and centred. A layout file gives it a box
/// layout; the column sees to that layout's margins.
class Column : public QWidget {
    Q_OBJECT

public:
    explicit Column(QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    /// Above and below the layout.
    void setVerticalMargins(int top, int bottom);

    /// Of a window that is this wide: how wide the column is, and how far from the left edge.
    [[nodiscard]] int columnWidth(int span) const;
    [[nodiscard]] int columnOffset(int span) const { return (span - columnWidth(span)) / 2; }
    /// The column's edges within this widget.
    [[nodiscard]] QMargins sides() const;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int span() const;
    void adoptMargins();

    int top_ = 0;
    int bottom_ = 0;
};

/// A page of the tabs: scrolls its column when it must, and scrolls to what has the keyboard. Its
/// column may stay empty until it is first shown.
class Page : public QScrollArea {
    Q_OBJECT

public:
    explicit Page(QWidget* parent = nullptr);

    [[nodiscard]] Column& column() const { return *column_; }
    [[nodiscard]] QSize sizeHint() const override;
    void setVisible(bool visible) override;

    /// What puts the controls into the column. A page that is the first of its tabs counts as shown
    /// from the start, so its owner fills it.
    using Filling = std::function<void(Column&)>;
    void setFilling(Filling filling) { filling_ = std::move(filling); }
    /// Does nothing when it is filled already.
    void fill();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showFocused(QWidget* focused);

    Column* column_;
    Filling filling_;
};

/// A rounded ground for rows, parted by hairlines.
class Card : public QFrame {
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Lays out its children by what they are told in the dynamic property "place": "start" for a
/// picture before the text, "label" for a form's label, "end" for controls, which move below the
/// text where that would become too narrow; all others are stacked as text. Below a check box text
/// starts where the box's text does.
class Row : public Arranger {
    Q_OBJECT
    Q_PROPERTY(Kind kind READ kind WRITE setKind)
    Q_PROPERTY(int startWidth READ startWidth WRITE setStartWidth)
    Q_PROPERTY(QString follows READ follows WRITE setFollows)

public:
    enum Kind {
        CardRow,
        DependentRow, ///< of the row above: indented, no hairline
        BareRow,      ///< outside a card
        SectionRow    ///< the heading of a section
    };
    Q_ENUM(Kind)

    explicit Row(QWidget* parent = nullptr);

    [[nodiscard]] Kind kind() const { return kind_; }
    void setKind(Kind kind);
    /// Room for a picture, where those of several rows stand under each other.
    [[nodiscard]] int startWidth() const { return startWidth_; }
    void setStartWidth(int width);
    /// Name of the child that the row's labels are greyed with; by default its check box.
    [[nodiscard]] QString follows() const { return follows_; }
    void setFollows(const QString& name);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void arrangeChildren() override;
    [[nodiscard]] virtual QMargins padding() const;
    /// How far pictures stand from the row's edge.
    [[nodiscard]] virtual int pictureInset() const { return padding().left(); }

private:
    struct Parts {
        std::vector<QWidget*> start;
        std::vector<QWidget*> label;
        std::vector<QWidget*> text;
        std::vector<QWidget*> end;
    };
    struct Place {
        QWidget* widget;
        QRect rect;
    };
    using Places = std::vector<Place>;
    /// What the parts get of a row's width. Label and controls go above and below the text where
    /// too little would be left for it.
    struct Measures {
        int step;  ///< between controls
        int left;  ///< of all that is no picture
        int room;  ///< from there to the padding
        int label; ///< 0 where there is none beside the text
        int text;
        QSize end{0, 0}; ///< of all controls at the end, side by side
        bool labelAbove;
        bool endBelow;
    };

    [[nodiscard]] Parts parts() const;
    [[nodiscard]] QWidget* followed() const;
    [[nodiscard]] int labelWidth() const;
    [[nodiscard]] int startSpace(const Parts& parts) const;
    [[nodiscard]] Measures measure(int width, const Parts& group) const;
    /// One below the other; gives the height.
    int placeTexts(const Parts& group, QPoint corner, int width, Places& places) const;
    /// Centred in the height.
    void placePictures(const Parts& group, int y, int height, Places& places) const;
    /// Places everything into a width; gives the height.
    int arrange(int width, Places& places) const;
    void greyLabels();

    Kind kind_ = CardRow;
    int startWidth_ = 0;
    QString follows_;
};

/// A row that stands out by a ground of its own while it is prominent; its text stays in place.
class BannerRow final : public Row {
    Q_OBJECT

public:
    explicit BannerRow(QWidget* parent = nullptr);

    /// The button of a prominent row is the window's default one.
    void setProminent(bool prominent);

Q_SIGNALS:
    void prominentChanged(bool prominent);

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] QMargins padding() const override;
    [[nodiscard]] int pictureInset() const override;

private:
    bool prominent_ = false;
};

/// A box of two equal parts beside each other, or below each other where that is too narrow.
class Columns final : public QWidget {
    Q_OBJECT

public:
    explicit Columns(QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;
};

/// A check box whose text wraps.
class CheckBox final : public QCheckBox {
    Q_OBJECT

public:
    explicit CheckBox(QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& position) const override;

private:
    [[nodiscard]] QRect textPlace(int width) const;
    [[nodiscard]] int textFlags() const;
};

} // namespace zarvil::qt
