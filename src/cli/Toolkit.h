#pragma once

#include <QGuiApplication>

#include <memory>

/// Fonts need an application of the toolkit; this one needs no screen. Null if there is one already.
std::unique_ptr<QGuiApplication> OpenToolkit();
