#pragma once

#include "PersistentContainer.h"

#include <memory>

// The application delegate: owns the one persistent container and its main context, which every
// screen takes, and saves what is left when the application ends.
class AppDelegate
{
public:
    static AppDelegate &shared();
    // The name of the model, and of its store.
    static inline const QString modelName = QStringLiteral("TheLarkwellsBook");

    // Created and loaded on first use; a store that cannot be loaded is a fatal stop.
    PersistentContainer &persistentContainer();
    ManagedObjectContext &viewContext() { return persistentContainer().viewContext(); }

    // Saves the main context when it has changes; a failed save is a fatal stop.
    void saveContext();
    bool didFinishLaunching() { return true; }
    void applicationWillTerminate() { saveContext(); }

    // Forgets the container, so the next use opens the store anew (another data folder).
    void reset() { m_persistentContainer.reset(); }

private:
    AppDelegate() = default;
    std::unique_ptr<PersistentContainer> m_persistentContainer;
};

// A fresh container on the model's store, loaded; a load failure is a fatal stop.
std::unique_ptr<PersistentContainer> loadedContainer();
