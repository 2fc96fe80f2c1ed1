// The navigation list: a title and an image a line.
#pragma once

#include <QTreeWidget>
#include <functional>

#include "form/FormModel.h"

namespace kestedit {

/// Shows what the form's list holds. It moves nothing itself: it tells what the user wants, and shows the line that the
/// form has focused then.
class NodeList : public QTreeWidget {
    Q_OBJECT

  public:
    explicit NodeList(QWidget* parent = nullptr);

    /// `meaning` says an image in words, for a tool tip and for those who do not see it.
    void show(const NavigationList& list, const std::function<QString(std::string_view image)>& meaning);

    [[nodiscard]] QSize sizeHint() const override;
    /// As wide as the longest word: titles break, words do not.
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void nodeChosen(int position);
    /// An arrow key, by its code in the form: 38 up, 40 down.
    void arrowPressed(int code);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override {}  // dragging over the lines chooses none of them
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void showLook();
    void showColours();
    void showImages();
    [[nodiscard]] QIcon imageOf(std::string_view node) const;
    [[nodiscard]] int currentRow() const;
    [[nodiscard]] int widthFor(int title) const;

    NavigationList shown_;
    std::function<QString(std::string_view)> meaning_;
    bool colouring_ = false;
};

}  // namespace kestedit
