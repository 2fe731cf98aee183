#!/usr/bin/python3
"""Takes the entities of a DXF file as plain values, then makes a drawing of them with python3-ezdxf and saves it beside;
prints their number, the seconds of the making and those of the saving."""
import sys
import time

import ezdxf

ALREADY_THERE = {'handle', 'owner', 'paperspace'}


def values_of(entity):
    attributes = {key: value for key, value in entity.dxfattribs().items() if key not in ALREADY_THERE}
    kind = entity.dxftype()
    if kind == 'LWPOLYLINE':
        attributes.pop('count', None)
        return kind, attributes, list(entity.get_points('xyseb'))
    if kind == 'SPLINE':
        for key in ('n_knots', 'n_control_points', 'n_fit_points'):
            attributes.pop(key, None)
        return kind, attributes, (list(entity.fit_points), list(entity.control_points), list(entity.knots))
    return kind, attributes, None


def add(space, kind, attributes, shape):
    if kind == 'LWPOLYLINE':
        space.add_lwpolyline(shape, format='xyseb', dxfattribs=attributes)
    elif kind == 'SPLINE':
        spline = space.add_spline(dxfattribs=attributes)
        spline.fit_points, spline.control_points, spline.knots = shape
    else:
        space.new_entity(kind, attributes)


given = ezdxf.readfile(sys.argv[1])
entities = [values_of(entity) for entity in given.modelspace()]
tables = [[(record.dxf.name, record.dxfattribs()) for record in table]
          for table in (given.layers, given.linetypes, given.styles)]

begin = time.perf_counter()
doc = ezdxf.new('R2000')
for table, records in zip((doc.layers, doc.linetypes, doc.styles), tables):
    for name, attributes in records:
        if name not in table:
            table.new(name, {key: value for key, value in attributes.items() if key not in ALREADY_THERE})
for kind, attributes, shape in entities:
    add(doc.modelspace(), kind, attributes, shape)
made = time.perf_counter()
doc.saveas(sys.argv[1] + '.ezdxf.dxf')
print(len(doc.modelspace()), made - begin, time.perf_counter() - made)
