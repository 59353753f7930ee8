#include "tovuutil/platform/GUIServiceImpl.h"

#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/ServiceTable.h"
#include "tovuutil/framework/PropertiesService.h"
#include "tovuutil/framework/UtilServiceFactory.h"

namespace {

// Calls a host callback; a callback that throws gives 0 and an error line.
template <class Call>
int callHost(Logger* logger, char const* errorText, Call call)
{
    try {
        return call();
    } catch (...) {
        if (logger->isErrorEnabled())
            logger->error(errorText);
        return 0;
    }
}

std::string orEmpty(char const* text) { return text ? std::string(text) : std::string(); }

} // namespace

GUIServiceImpl::GUIServiceImpl() : logger_(Logger::getInstance("tovuutil.GUIServiceImpl"))
{
    logger_->beginConstruct("GUIServiceImpl()");
    logger_->endConstruct("GUIServiceImpl()");
}

GUIServiceImpl::~GUIServiceImpl()
{
    logger_->beginDestruct("~GUIServiceImpl()");
    logger_->endDestruct("~GUIServiceImpl()");
}

void GUIServiceImpl::registerMessageBox(MessageBoxCallback callback)
{
    logger_->beginMethod("registerMessageBox");
    messageBox_ = callback;
    logger_->endMethod("registerMessageBox");
}

void GUIServiceImpl::registerInitProgressDialog(ProgressDialogCallback callback)
{
    logger_->beginMethod("registerInitProgressDialog");
    initProgressDialog_ = callback;
    logger_->endMethod("registerInitProgressDialog");
}

void GUIServiceImpl::registerUpdateProgressDialog(ProgressDialogCallback callback)
{
    logger_->beginMethod("registerUpdateProgressDialog");
    updateProgressDialog_ = callback;
    logger_->endMethod("registerUpdateProgressDialog");
}

void GUIServiceImpl::registerCloseProgressDialog(CloseProgressDialogCallback callback)
{
    logger_->beginMethod("registerCloseProgressDialog");
    closeProgressDialog_ = callback;
    logger_->endMethod("registerCloseProgressDialog");
}

void GUIServiceImpl::unregisterMessageBox()
{
    logger_->beginMethod("unregisterMessageBox");
    messageBox_ = nullptr;
    logger_->endMethod("unregisterMessageBox");
}

void GUIServiceImpl::unregisterInitProgressDialog()
{
    logger_->beginMethod("unregisterInitProgressDialog");
    initProgressDialog_ = nullptr;
    logger_->endMethod("unregisterInitProgressDialog");
}

void GUIServiceImpl::unregisterUpdateProgressDialog()
{
    logger_->beginMethod("unregisterUpdateProgressDialog");
    updateProgressDialog_ = nullptr;
    logger_->endMethod("unregisterUpdateProgressDialog");
}

void GUIServiceImpl::unregisterCloseProgressDialog()
{
    logger_->beginMethod("unregisterCloseProgressDialog");
    closeProgressDialog_ = nullptr;
    logger_->endMethod("unregisterCloseProgressDialog");
}

int GUIServiceImpl::messageBox(std::string const& first, std::string const& second, int type)
{
    std::string marker;
    if (logger_->isDebugEnabled()) {
        marker = "messageBox(" + first + ", " + second + ", " + std::to_string(type) + ")";
        logger_->beginMethod(marker);
    }
    if (logger_->isInfoEnabled())
        logger_->info("[" + second + "]: " + first);
    int result = 0;
    if (isDialogEnabled()) {
        // Called through a copy: no lock is held while the host runs.
        if (auto callback = messageBox_.load())
            result = callHost(logger_, "Fehler beim Aufruf von messageBox()!",
                              [&] { return callback(first.c_str(), second.c_str(), type); });
    }
    if (logger_->isDebugEnabled())
        logger_->endMethod(marker);
    return result;
}

int GUIServiceImpl::messageBox(char const* first, char const* second, int type)
{
    // Through the virtual slot, so an override of the string form serves both.
    return messageBox(orEmpty(first), orEmpty(second), type);
}

int GUIServiceImpl::initProgressDialog(char const* t1, char const* t2, char const* t3, char const* t4,
                                       char const* t5, char const* t6, char const* t7, char const* t8,
                                       char const* t9, char const* t10, short n1, short n2)
{
    logger_->beginMethod("initProgressDialog");
    int result = 0;
    if (isDialogEnabled()) {
        if (auto callback = initProgressDialog_.load())
            result = callHost(logger_, "Fehler beim Aufruf von initProgressDialog()!",
                              [&] { return callback(t1, t2, t3, t4, t5, t6, t7, t8, t9, t10, n1, n2); });
    }
    logger_->endMethod("initProgressDialog");
    return result;
}

int GUIServiceImpl::updateProgressDialog(char const* t1, char const* t2, char const* t3, char const* t4,
                                         char const* t5, char const* t6, char const* t7, char const* t8,
                                         char const* t9, char const* t10, short n1, short n2)
{
    logger_->beginMethod("updateProgressDialog");
    int result = 0;
    if (isDialogEnabled()) {
        if (auto callback = updateProgressDialog_.load())
            result = callHost(logger_, "Fehler beim Aufruf von updateProgressDialog()!",
                              [&] { return callback(t1, t2, t3, t4, t5, t6, t7, t8, t9, t10, n1, n2); });
    }
    logger_->endMethod("updateProgressDialog");
    return result;
}

int GUIServiceImpl::closeProgressDialog()
{
    logger_->beginMethod("closeProgressDialog");
    int result = 0;
    if (isDialogEnabled()) {
        if (auto callback = closeProgressDialog_.load())
            result = callHost(logger_, "Fehler beim Aufruf von closeProgressDialog()!",
                              [&] { return callback(); });
    }
    logger_->endMethod("closeProgressDialog");
    return result;
}

bool GUIServiceImpl::isDialogEnabled()
{
    // Read on every call: a test may switch dialogs off while the host runs.
    auto* properties = static_cast<PropertiesService*>(UtilServiceFactory::getService(1));
    if (properties == nullptr)
        return true;
    std::string const resource = properties->loadProperties("tdf.dii");
    return properties->getProperty(resource, "TEST.NO_DIALOG", "") != "TRUE";
}

tovu::detail::CreatedService tovu::detail::createGUIService() { return makeService<GUIServiceImpl>(); }
