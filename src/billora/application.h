#ifndef APPLICATION_H
#define APPLICATION_H

/**
 * The application object, and the part of the program that draws. Both are small until something is to be drawn: the
 * libraries of fonts, windows and scripts take half of the time of a start.
 */
namespace Application {

/** Begins without fonts. @param argv  of main() */
void start(char **argv);

} // namespace Application

#endif
