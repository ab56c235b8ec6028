#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lullet {

class Protection;

// The password settings: protection on or off, and the password set or changed. A password
// that is stored must be given again before anything here can change it or turn it off.
class SecurityTab final : public QWidget {
    Q_OBJECT
public:
    explicit SecurityTab(Protection& protection, QWidget* parent = nullptr);

private:
    QWidget* makeGate();
    QWidget* makeNewPassword();
    QWidget* makeKeyringStatus();
    void readStoredPassword();
    void onSwitchClicked(bool on);
    void onContinue();
    void onDone();
    void onStored(const QString& error);
    // Shows the parts that belong to the switch and to whether the current password was given.
    void showParts();
    void showMessage(QLabel* label, const QString& text, const char* color);

    Protection& m_protection;
    QCheckBox* m_switch = nullptr;
    QLabel* m_note = nullptr;
    QWidget* m_gate = nullptr;
    QLineEdit* m_current = nullptr;
    QLabel* m_gateMessage = nullptr;
    QWidget* m_fields = nullptr;
    QLineEdit* m_new = nullptr;
    QLineEdit* m_repeat = nullptr;
    QLabel* m_message = nullptr;
    QPushButton* m_done = nullptr;
    QWidget* m_keyring = nullptr;
    QLabel* m_keyringText = nullptr;
    QPushButton* m_retry = nullptr;
    // Protection is on in this panel's eyes, and the password it holds to.
    bool m_protected = false;
    QString m_password;
    // No stored password stands in the way: none is stored, or the current one was given.
    bool m_confirmed = false;
};

} // namespace lullet
