#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace lullet {

class Protection;

// The page the main window opens on while the program is locked: the user's name and picture
// and the password entry. Getting in unlocks the program for the rest of the run; the page
// itself only asks.
class LoginPage final : public QWidget {
    Q_OBJECT
public:
    explicit LoginPage(Protection& protection, QWidget* parent = nullptr);

    QLineEdit* passwordField() const { return m_password; }

Q_SIGNALS:
    void preferencesRequested();
    void quitRequested();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeGreeting();
    QWidget* makeEntry();
    QWidget* makeUnreachable();
    void showIdentity();
    void submit();
    void showError(const QString& text);
    // While the keyring is asked, nothing can be submitted twice.
    void setChecking(bool checking);

    Protection& m_protection;
    QLabel* m_picture = nullptr;
    QLabel* m_name = nullptr;
    QLineEdit* m_password = nullptr;
    QPushButton* m_logIn = nullptr;
    QLabel* m_error = nullptr;
    QWidget* m_unreachable = nullptr;
    QLabel* m_unreachableText = nullptr;
};

} // namespace lullet
