#include "AppDelegate.h"

#include "FatalError.h"

using namespace Qt::StringLiterals;

std::unique_ptr<PersistentContainer> loadedContainer(const QString &screen)
{
    auto container = std::make_unique<PersistentContainer>(AppDelegate::modelName);
    container->loadPersistentStores([&screen](const std::optional<StoreError> &error) {
        if (error)
            fatalError(error->unresolvedMessage() + (screen.isEmpty() ? QString() : u" ("_s + screen + u')'));
    });
    return container;
}

AppDelegate &AppDelegate::shared()
{
    static AppDelegate delegate;
    return delegate;
}

PersistentContainer &AppDelegate::persistentContainer(const QString &screen)
{
    if (!m_persistentContainer)
        m_persistentContainer = loadedContainer(screen);
    return *m_persistentContainer;
}

void AppDelegate::saveContext()
{
    if (!m_persistentContainer)
        return;
    ManagedObjectContext &context = m_persistentContainer->viewContext();
    if (!context.hasChanges())
        return;
    if (const auto error = context.save())
        fatalError(error->unresolvedMessage());
}
