#include "JobList.h"

#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <exception>
#include <kestEdit/component/LinuxPlatform.h>
#include <kestEdit/component/clsEdit.h>
#include <kestEdit/desktop/DesktopFrontEnd.h>

JobList::JobList(const QString& folder) : folder_(folder), jobs_(new QListWidget(this)) {
    setWindowTitle("Jobs");
    auto* const create = new QPushButton("New job", this);
    auto* const edit = new QPushButton("Edit job", this);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(jobs_);
    layout->addWidget(create);
    layout->addWidget(edit);
    connect(create, &QPushButton::clicked, this, [this] { openEditor("New", {}); });
    connect(edit, &QPushButton::clicked, this, [this] {
        if (const QListWidgetItem* job = jobs_->currentItem()) openEditor("Edit", job->text());
    });
    listJobs();
}

void JobList::listJobs() {
    jobs_->clear();
    folder_.refresh();
    jobs_->addItems(folder_.entryList({"*.job"}, QDir::Files));
    jobs_->setCurrentRow(0);
}

// A run changes the editor's properties, so each run gets an editor of its own.
void JobList::openEditor(const char* mode, const QString& job) {
    try {
        const auto window = kestedit::desktopFrontEnd();
        kestedit::LinuxPlatform platform(window->prompts());
        kestedit::clsEdit editor(platform.services(), window->driver());
        editor.Mode(mode);
        editor.AppTitle("Job host");
        editor.JobDir(folder_.path().toStdString());
        editor.JobFile(folder_.filePath(job).toStdString());
        editor.JobExtension(".job");
        editor.INIFile(folder_.filePath("host.ini").toStdString());
        editor.Language(LANGUAGE_FOLDER "/english.lng");
        editor.SearchJobs = [this] { listJobs(); };
        editor.SetNewValues = [this](std::string&) { listJobs(); };
        editor.Show(4);
    } catch (const std::exception& failure) {
        QMessageBox::critical(this, windowTitle(), failure.what());
    }
}
