#pragma once

#include "core/presentation/ProjectChoices.h"
#include "core/presentation/QuickAddForm.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace lullet {

class Project;
struct Services;

// Quick add: a task name, a project, a date, and add. The same form serves as the main view's
// bar and as a window of its own.
class QuickAddView final : public QWidget {
    Q_OBJECT
public:
    explicit QuickAddView(const Services& services, QWidget* parent = nullptr);

    QLineEdit* nameField() const { return m_name; }
    const QuickAddForm& form() const { return m_form; }

    // The form is used afresh: due ten minutes from now, in the given project.
    void reset(const Project* selected);
    void add();

Q_SIGNALS:
    // The task was added: the form may go.
    void added(lullet::Item* item);
    // Escape: the form goes, nothing added.
    void dismissed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildOptions(QVBoxLayout* layout);
    void fillProjects(const Project* selected);
    void showDate();
    void chooseDate();

    const Services& m_services;
    QuickAddForm m_form;
    ProjectChoices m_choices;
    QLineEdit* m_name;
    QComboBox* m_projects;
    QComboBox* m_duration;
    QPushButton* m_dateButton;
    QLabel* m_dateLabel;
    QLabel* m_timeLabel;
};

} // namespace lullet
