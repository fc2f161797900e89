#include "formdata/mdRunStep.h"

#include "formdata/mdGlobals.h"

void RunStep(const QString &name, const std::function<void()> &action)
{
    RunStep([&] {
        action();
        return name;
    });
}

void RunStep(const std::function<QString()> &action)
{
    Document().history.run(action);
}
