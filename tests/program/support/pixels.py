"""Pictures of the screen as numbers."""
import re


def pixels_of(session, left, top, width, height):
    """Rows of (red, green, blue) of a part of the screen."""
    path = session.path("pixels.ppm")
    session.run("import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "+repage", "-depth", "8", path)
    with open(path, "rb") as file:
        content = file.read()
    header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", content)
    columns = int(header[1])
    data = content[header.end():]
    colours = [tuple(data[at:at + 3]) for at in range(0, len(data), 3)]
    return [colours[at:at + columns] for at in range(0, len(colours), columns)]
