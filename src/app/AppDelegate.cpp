#include "AppDelegate.h"

#include "FatalError.h"

std::unique_ptr<PersistentContainer> loadedContainer()
{
    auto container = std::make_unique<PersistentContainer>(AppDelegate::modelName);
    container->loadPersistentStores([](const std::optional<StoreError> &error) {
        if (error)
            fatalError(error->unresolvedMessage());
    });
    return container;
}

AppDelegate &AppDelegate::shared()
{
    static AppDelegate delegate;
    return delegate;
}

PersistentContainer &AppDelegate::persistentContainer()
{
    if (!m_persistentContainer)
        m_persistentContainer = loadedContainer();
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
