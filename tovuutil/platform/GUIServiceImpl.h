#ifndef TOVUUTIL_PLATFORM_GUISERVICEIMPL_H
#define TOVUUTIL_PLATFORM_GUISERVICEIMPL_H

#include <atomic>

#include <tovuutil/framework/GUIService.h>

class Logger;

// GUIServiceImpl
//
// Service 3, created by the lifetime manager at start-up. Callbacks may be
// registered and called from any thread; a callback runs with no lock of the
// library held, so it may call back into the library (this service too). A
// call that races an unregister runs the callback it found at its start.
class TOVU_API GUIServiceImpl : public GUIService {
public:
    GUIServiceImpl();
    ~GUIServiceImpl() override;

    void registerMessageBox(MessageBoxCallback callback) override;
    void registerInitProgressDialog(ProgressDialogCallback callback) override;
    void registerUpdateProgressDialog(ProgressDialogCallback callback) override;
    void registerCloseProgressDialog(CloseProgressDialogCallback callback) override;
    void unregisterMessageBox() override;
    void unregisterInitProgressDialog() override;
    void unregisterUpdateProgressDialog() override;
    void unregisterCloseProgressDialog() override;
    int messageBox(std::string const& text, std::string const& caption, int type) override;
    int messageBox(char const* text, char const* caption, int type) override;
    int initProgressDialog(char const*, char const*, char const*, char const*, char const*, char const*,
                           char const*, char const*, char const*, char const*, short, short) override;
    int updateProgressDialog(char const*, char const*, char const*, char const*, char const*, char const*,
                             char const*, char const*, char const*, char const*, short, short) override;
    int closeProgressDialog() override;
    bool isDialogEnabled() override;

private:
    Logger* logger_;
    std::atomic<MessageBoxCallback> messageBox_{nullptr};
    std::atomic<ProgressDialogCallback> initProgressDialog_{nullptr};
    std::atomic<ProgressDialogCallback> updateProgressDialog_{nullptr};
    std::atomic<CloseProgressDialogCallback> closeProgressDialog_{nullptr};
};

#endif
