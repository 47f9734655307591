import pytest
import qvpi


@pytest.fixture(autouse=True, scope="session")
def strips_of_small_images():
    """Threads take part in small images, too."""
    qvpi._threads.LEAST_BYTES = 1
