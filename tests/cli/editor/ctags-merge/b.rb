class Foo
end
