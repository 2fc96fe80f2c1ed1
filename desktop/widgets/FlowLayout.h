// Widgets side by side, in as many lines as the width asks for.
#pragma once

#include <QLayout>
#include <memory>
#include <span>
#include <vector>

namespace kestedit {

/// A label and its buddy stay on one line.
class FlowLayout : public QLayout {
  public:
    enum class Edge { leading, trailing };

    /// `edge` is where each line begins or ends.
    explicit FlowLayout(QWidget* parent = nullptr, Edge edge = Edge::leading);
    ~FlowLayout() override = default;

    void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
    [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return arrange(QRect(0, 0, width, 0), false); }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

  private:
    /// Gives the height that `area`'s width needs; places the widgets when `place` is set.
    int arrange(const QRect& area, bool place) const;
    void placeLine(const QRect& area, std::span<QLayoutItem* const> line, QRect room) const;
    /// Items that no line break may part, hidden ones left out.
    [[nodiscard]] std::vector<std::vector<QLayoutItem*>> chunks() const;
    [[nodiscard]] int gapBetween(const QLayoutItem& one, const QLayoutItem& next) const;
    [[nodiscard]] QSize sizeOf(std::span<QLayoutItem* const> items) const;

    const Edge edge_;
    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace kestedit
