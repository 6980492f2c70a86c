import QtQuick
import QtTest
import Pelko

TestCase {
    name: "SpringFollower"

    Component {
        id: followerComponent

        SpringFollower { response: 0.3; dampingFraction: 1 }
    }

    function test_beginsAtItsFirstGoal() {
        const follower = createTemporaryObject(followerComponent, this, { goal: 5 })
        compare(follower.value, 5)
    }

    function test_arrivesExactly() {
        const follower = createTemporaryObject(followerComponent, this, { goal: 0 })
        follower.goal = 1
        compare(follower.value, 0)
        tryCompare(follower, "value", 1)
    }

    function test_carriesItsSpeedWhenTheGoalTurnsBack() {
        const follower = createTemporaryObject(followerComponent, this, { goal: 0 })
        follower.goal = 1
        tryVerify(() => follower.value > 0.3)
        const atTheTurn = follower.value
        let furthest = 0
        follower.valueChanged.connect(() => furthest = Math.max(furthest, follower.value))
        follower.goal = 0
        tryCompare(follower, "value", 0)
        verify(furthest > atTheTurn)
    }

    function test_jumpsWhenInstant() {
        const follower = createTemporaryObject(followerComponent, this, { goal: 0, instant: true })
        follower.goal = 3
        compare(follower.value, 3)
    }

    function test_goesAlongWithItsGoalWhenCarried() {
        const follower = createTemporaryObject(followerComponent, this, { goal: 0, carried: true })
        follower.goal = 3
        compare(follower.value, 3)
    }

    function test_keepsTheWayThatIsLeftWhenCarried() {
        const follower = createTemporaryObject(followerComponent, this, { goal: 0 })
        follower.goal = 1
        follower.carried = true
        follower.goal = 11
        compare(follower.value, 10)
        tryCompare(follower, "value", 11)
    }
}
