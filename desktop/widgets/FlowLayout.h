// Widgets side by side, from the trailing edge on, in as many lines as the width asks for.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace kestedit {

class FlowLayout : public QLayout {
  public:
    explicit FlowLayout(QWidget* parent = nullptr) : QLayout(parent) { setContentsMargins(0, 0, 0, 0); }
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

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace kestedit
