// The host's own window: the jobs of a folder in a list, and two buttons that open the editor.
#pragma once

#include <QDir>
#include <QString>
#include <QWidget>

class QListWidget;

class JobList final : public QWidget {
  public:
    explicit JobList(const QString& folder);

  private:
    void listJobs();
    void openEditor(const char* mode, const QString& job);

    QDir folder_;
    QListWidget* jobs_;
};
