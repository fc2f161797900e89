#include "base/mdRunTimeErrorOf.h"

#include <new>

namespace {

constexpr int InternalError = 51;

} // namespace

clsRunTimeError mdRunTimeErrorOf(const std::exception_ptr &failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const clsRunTimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return clsRunTimeError(clsRunTimeError::OutOfMemory);
    } catch (const std::exception &error) {
        return clsRunTimeError(InternalError, QString::fromUtf8(error.what()));
    } catch (...) {
        return clsRunTimeError(InternalError, QStringLiteral("Internal error"));
    }
}
